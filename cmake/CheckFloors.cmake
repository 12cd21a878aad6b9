# Fails when a folder includes what its floor may not use: a folder above it, or, up to the drawing,
# any header that is not the language's standard library.
# Run as: cmake -DSOURCE_DIR=<tree> -P CheckFloors.cmake
cmake_minimum_required(VERSION 3.25)

set(folders runtime platform support model platetext platecheck control drawing welldata)
set(allowed_runtime runtime)
set(allowed_platform runtime platform)
set(allowed_support runtime platform support)
set(allowed_model runtime platform support platetext model)
set(allowed_platetext ${allowed_model})
set(allowed_platecheck ${allowed_model} platecheck)
set(allowed_control ${allowed_model} control)
set(allowed_drawing ${allowed_control} drawing)
set(allowed_welldata ${allowed_control} welldata)

set(standard_headers
    algorithm any array atomic bit bitset cctype cerrno cfloat charconv chrono climits cmath compare
    complex concepts csignal cstddef cstdint cstdio cstdlib cstring ctime cwchar deque exception
    filesystem forward_list fstream functional initializer_list iomanip ios iosfwd iostream istream
    iterator limits list locale map memory new numbers numeric optional ostream queue random ranges
    ratio regex set span sstream stack stdexcept streambuf string string_view system_error tuple
    type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector)

set(failures "")
foreach(folder IN LISTS folders)
    file(GLOB_RECURSE files RELATIVE "${SOURCE_DIR}" "${SOURCE_DIR}/${folder}/*.h" "${SOURCE_DIR}/${folder}/*.cpp")
    foreach(file IN LISTS files)
        # The registry kept in a file is the one room of these floors that calls a library.
        set(library_headers "")
        if(file MATCHES "^platform/sqlite/")
            set(library_headers sqlite3.h)
        endif()
        file(STRINGS "${SOURCE_DIR}/${file}" includes REGEX "^[ \t]*#[ \t]*include")
        foreach(line IN LISTS includes)
            if(line MATCHES "<([^>]+)>")
                if(NOT CMAKE_MATCH_1 IN_LIST standard_headers AND NOT CMAKE_MATCH_1 IN_LIST library_headers)
                    string(APPEND failures "${file}: <${CMAKE_MATCH_1}> is no standard header\n")
                endif()
            elseif(line MATCHES "\"([^\"]+)\"")
                set(header "${CMAKE_MATCH_1}")
                string(REGEX REPLACE "/.*" "" room "${header}")
                if(NOT room IN_LIST allowed_${folder})
                    string(APPEND failures "${file}: \"${header}\" is above this floor\n")
                endif()
            else()
                string(APPEND failures "${file}: cannot read: ${line}\n")
            endif()
        endforeach()
    endforeach()
endforeach()

if(failures)
    message(FATAL_ERROR "${failures}")
endif()
