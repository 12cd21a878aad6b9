# Fails when a folder includes what its floor may not use: a folder that is not below it, or, up to
# the drawing, any header that is not the language's standard library.
# Run as: cmake -DSOURCE_DIR=<tree> -P CheckFloors.cmake
cmake_minimum_required(VERSION 3.25)

set(folders "")
# floor(<folder> <folder>...): the first may use the others, and what they may use.
macro(floor folder)
    list(APPEND folders ${folder})
    set(allowed_${folder} ${folder})
    foreach(below ${ARGN})
        list(APPEND allowed_${folder} ${below} ${allowed_${below}})
    endforeach()
endmacro()

floor(runtime)
floor(calibration runtime)
floor(platform runtime)
floor(platform/memory platform)
floor(platform/sqlite platform)
floor(support platform)
floor(model support platetext)
floor(platetext support model)
floor(platecheck platetext)
floor(control platetext)
floor(drawing control platform/memory)
floor(interface control)
set(standard_library_only ${folders})
floor(library platetext)
floor(welldata control)
floor(formats welldata)
floor(hosts/qt drawing platform/memory platform/sqlite)
floor(hosts/designer hosts/qt)
floor(python calibration drawing library platecheck platform/memory)
floor(apps/plate calibration drawing formats library platecheck welldata platform/memory platform/sqlite)
floor(apps/viewer hosts/qt library welldata)

set(library_headers_platform/sqlite sqlite3.h)
set(standard_headers
    algorithm any array atomic bit bitset cctype cerrno cfloat charconv chrono climits cmath compare
    complex concepts csignal cstddef cstdint cstdio cstdlib cstring ctime cwchar deque exception
    filesystem forward_list fstream functional initializer_list iomanip ios iosfwd iostream istream
    iterator limits list locale map memory new numbers numeric optional ostream queue random ranges
    ratio regex set span sstream stack stdexcept streambuf string string_view system_error tuple
    type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector)

# The innermost of the folders that a file lies in; empty when it lies in none.
function(folder_of file result)
    set(found "")
    foreach(folder IN LISTS folders)
        string(FIND "${file}" "${folder}/" at)
        string(LENGTH "${folder}" length)
        string(LENGTH "${found}" longest)
        if(at EQUAL 0 AND length GREATER longest)
            set(found ${folder})
        endif()
    endforeach()
    set(${result} "${found}" PARENT_SCOPE)
endfunction()

set(failures "")
file(GLOB_RECURSE files RELATIVE "${SOURCE_DIR}" "${SOURCE_DIR}/*.h" "${SOURCE_DIR}/*.cpp")
list(FILTER files EXCLUDE REGEX "^(build|tests|benchmarks|examples|fuzz)/")
foreach(file IN LISTS files)
    folder_of(${file} folder)
    if(NOT folder)
        string(APPEND failures "${file}: no floor is named for its folder\n")
        continue()
    endif()
    file(STRINGS "${SOURCE_DIR}/${file}" includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
        if(line MATCHES "<([^>]+)>")
            if(folder IN_LIST standard_library_only AND NOT CMAKE_MATCH_1 IN_LIST standard_headers
                    AND NOT CMAKE_MATCH_1 IN_LIST library_headers_${folder})
                string(APPEND failures "${file}: <${CMAKE_MATCH_1}> is no standard header\n")
            endif()
        elseif(line MATCHES "\"([^\"]+)\"")
            set(header "${CMAKE_MATCH_1}")
            folder_of(${header} used)
            if(NOT used IN_LIST allowed_${folder})
                string(APPEND failures "${file}: \"${header}\" is not below this floor\n")
            endif()
        else()
            string(APPEND failures "${file}: cannot read: ${line}\n")
        endif()
    endforeach()
endforeach()

if(failures)
    message(FATAL_ERROR "${failures}")
endif()
