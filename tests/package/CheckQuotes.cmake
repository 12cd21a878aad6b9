# Fails when a piece of C++ or CMake in the documentation is not, apart from indentation, in a program
# under examples, which are built and run.
# Run as: cmake -DSOURCE_DIR=<tree> -P CheckQuotes.cmake
cmake_minimum_required(VERSION 3.25)

# A text without its indentation and blank lines.
function(without_indentation text result)
    string(REGEX REPLACE "\n[ \n]+" "\n" text "\n${text}")
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

set(examples "")
file(GLOB_RECURSE sources "${SOURCE_DIR}/examples/*.cpp" "${SOURCE_DIR}/examples/*.h"
     "${SOURCE_DIR}/examples/CMakeLists.txt")
foreach(source IN LISTS sources)
    file(READ "${source}" text)
    without_indentation("${text}" text)
    string(APPEND examples "${text}")
endforeach()

set(quotes 0)
file(GLOB pages "${SOURCE_DIR}/docs/*.md" "${SOURCE_DIR}/README.md")
foreach(page IN LISTS pages)
    file(READ "${page}" text)
    while(text MATCHES "\n```(cpp|cmake)\n")
        string(FIND "${text}" "${CMAKE_MATCH_0}" begin)
        string(LENGTH "${CMAKE_MATCH_0}" fence)
        math(EXPR begin "${begin} + ${fence}")
        string(SUBSTRING "${text}" ${begin} -1 text)
        string(FIND "${text}" "```" end)
        string(SUBSTRING "${text}" 0 ${end} quote)
        string(SUBSTRING "${text}" ${end} -1 text)
        without_indentation("${quote}" bare)
        string(FIND "${examples}" "${bare}" found)
        if(found EQUAL -1)
            message(SEND_ERROR "${page}: no example has this:\n${quote}")
        endif()
        math(EXPR quotes "${quotes} + 1")
    endwhile()
endforeach()
if(quotes EQUAL 0)
    message(FATAL_ERROR "No code was found in the documentation.")
endif()
