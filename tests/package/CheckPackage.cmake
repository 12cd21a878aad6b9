# Fails when the installed package cannot be used: its headers compile with nothing but what is
# installed, the examples build, and what they print and draw is as expected.
# Run as: cmake -DSOURCE_DIR=<tree> -DBUILD_DIR=<build> -DCXX=<compiler> -DWITH_QT=<bool> [-DPREFIX=<folder>]
#         -P CheckPackage.cmake
# Without a prefix in which it is already installed, the build is installed to one of the test's own.
cmake_minimum_required(VERSION 3.25)

set(work "${BUILD_DIR}/package-test")
set(programs "${work}/examples")
set(library "${SOURCE_DIR}/data/Plates(Tarvo).Dat")
set(expected "${CMAKE_CURRENT_LIST_DIR}/expected")
file(REMOVE_RECURSE "${work}")
file(MAKE_DIRECTORY "${work}")
set(ENV{QT_QPA_PLATFORM} offscreen)

# run(<what> <command>...): what it writes is in `output`.
macro(run what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output
        WORKING_DIRECTORY "${work}")
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what} failed (${result}):\n${output}")
    endif()
endmacro()

# expect_file(<actual> <expected>): both are text.
function(expect_file actual expected)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files --ignore-eol "${actual}" "${expected}"
        RESULT_VARIABLE differs)
    if(differs)
        message(SEND_ERROR "${actual} is not as in ${expected}")
    endif()
endfunction()

if(PREFIX)
    set(prefix "${PREFIX}")
else()
    set(prefix "${work}/prefix")
    run("Installing" ${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")
endif()

# One file that includes every installed header, the widget's only where it is installed.
file(GLOB_RECURSE headers RELATIVE "${prefix}/include/zorvane" "${prefix}/include/zorvane/*.h")
list(FILTER headers EXCLUDE REGEX "^hosts/")
list(TRANSFORM headers REPLACE "(.+)" "#include <\\1>\n" OUTPUT_VARIABLE includes)
file(WRITE "${work}/headers.cpp" ${includes})
run("Compiling the installed headers"
    ${CXX} -std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
"-I${prefix}/include/zorvane" "${work}/headers.cpp")

# The same through pkg-config, where there is one.
find_program(pkg_config pkg-config)
if(pkg_config)
    file(GLOB_RECURSE module "${prefix}/lib/*zorvane-core.pc")
    get_filename_component(modules "${module}" DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} "${modules}")
    run("pkg-config" ${pkg_config} --cflags --libs zorvane-core)
    separate_arguments(flags UNIX_COMMAND "${output}")
    run("Building with pkg-config" ${CXX} -std=c++20 "${SOURCE_DIR}/examples/terminal/main.cpp"
        "${SOURCE_DIR}/examples/terminal/TextCanvas.cpp" ${flags} -o "${work}/terminal")
endif()

run("Configuring the examples" ${CMAKE_COMMAND} -S "${SOURCE_DIR}/examples" -B "${programs}" -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_BUILD_TYPE=Release
    "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror")
run("Building the examples" ${CMAKE_COMMAND} --build "${programs}")

# Shared libraries of a system's folder, unpacked elsewhere.
file(GLOB_RECURSE library_file "${prefix}/lib/*zorvane-core.*")
list(FILTER library_file EXCLUDE REGEX "pkgconfig")
list(GET library_file 0 library_file)
get_filename_component(library_folder "${library_file}" DIRECTORY)
set(ENV{LD_LIBRARY_PATH} "${library_folder}")

execute_process(COMMAND "${programs}/terminal/plate_in_a_terminal" "${library}" Batch_24
    INPUT_FILE "${expected}/terminal-commands.txt" OUTPUT_FILE "${work}/terminal.txt")
expect_file("${work}/terminal.txt" "${expected}/terminal.txt")

execute_process(COMMAND "${programs}/picture/plate_picture" "${library}" Batch_24 picture.svg
    WORKING_DIRECTORY "${work}" OUTPUT_FILE "${work}/places.txt")
expect_file("${work}/places.txt" "${expected}/places.txt")
expect_file("${work}/picture.svg" "${expected}/picture.svg")

if(WITH_QT)
    execute_process(COMMAND "${programs}/instrument/plate_for_an_instrument" "${library}"
        OUTPUT_FILE "${work}/instrument.txt" ERROR_QUIET)
    # The name of the library in a message is this machine's.
    file(READ "${work}/instrument.txt" text)
    string(REPLACE "${library}" "LIBRARY" text "${text}")
    file(WRITE "${work}/instrument.txt" "${text}")
    expect_file("${work}/instrument.txt" "${expected}/instrument.txt")
    foreach(example widget/plate_in_a_window form/plate_on_a_form)
        run("${example}" "${programs}/${example}" "${library}" Sitting_96x3 "${work}/picture.png")
        file(SIZE "${work}/picture.png" size)
        # An empty window of this size takes about 2,000 bytes.
        if(size LESS 5000)
            message(SEND_ERROR "${example} drew no plate: ${size} bytes")
        endif()
    endforeach()
endif()
