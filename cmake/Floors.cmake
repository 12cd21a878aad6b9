# One static library per folder. A folder's headers are reachable only through an include root of its
# own, handed on by linking it, so a folder that is not linked cannot be included by accident.

add_library(zorvane_options INTERFACE)
target_compile_features(zorvane_options INTERFACE cxx_std_20)
if(NOT MSVC)
    target_compile_options(zorvane_options INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow
        # No function of the floors is replaced at load time, so that the compiler may inline them.
        -fno-semantic-interposition
        # Programs that link the static libraries carry only what they use.
        -ffunction-sections -fdata-sections
        # Optimising, GCC 12 takes one-character texts given to std::string for overlapping copies.
        $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
        $<$<BOOL:${ZORVANE_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(ZORVANE_SANITIZE)
    target_compile_options(zorvane_options INTERFACE
        -fsanitize=${ZORVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zorvane_options INTERFACE -fsanitize=${ZORVANE_SANITIZE})
    # What lies within a container's memory but out of its bounds only the standard library notices.
    target_compile_definitions(zorvane_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()
if(ZORVANE_BUILD_FUZZERS)
    # The fuzzer sees the ways through the libraries only where they count them.
    target_compile_options(zorvane_options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(zorvane_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Compiles every header with nothing in front of it.
add_custom_target(check_headers)

# zorvane_check_headers(<target> <folder>): makes the folder's headers part of check_headers.
function(zorvane_check_headers target folder)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS
         RELATIVE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/${folder}/*.h")
    list(TRANSFORM headers REPLACE "(.+)" "${PROJECT_BINARY_DIR}/headers/\\1.cpp" OUTPUT_VARIABLE sources)
    foreach(header source IN ZIP_LISTS headers sources)
        file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"${header}\"\n")
    endforeach()
    if(sources)
        string(MAKE_C_IDENTIFIER "check_headers_${folder}" check)
        add_library(${check} OBJECT EXCLUDE_FROM_ALL ${sources})
        target_include_directories(${check} PRIVATE $<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>)
        target_link_libraries(${check} PRIVATE $<TARGET_PROPERTY:${target},LINK_LIBRARIES>)
        add_dependencies(check_headers ${check})
    endif()
endfunction()

# zorvane_include_root(<target> <folder>): lets users of <target> include "<folder>/X.h".
function(zorvane_include_root target folder)
    set(root "${PROJECT_BINARY_DIR}/include/${target}")
    get_filename_component(parent "${folder}" DIRECTORY)
    file(MAKE_DIRECTORY "${root}/${parent}")
    file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${folder}" "${root}/${folder}" SYMBOLIC COPY_ON_ERROR)
    target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${root}>")
    zorvane_check_headers(${target} ${folder})
endfunction()

# zorvane_floor(<name> [FOLDERS <folder>...] SOURCES <file>... [USES <target>...])
# The target is zorvane_<name>, with the alias zorvane::<name>; the folder is <name> unless given.
function(zorvane_floor name)
    cmake_parse_arguments(PARSE_ARGV 1 FLOOR "" "" "FOLDERS;SOURCES;USES")
    if(NOT FLOOR_FOLDERS)
        set(FLOOR_FOLDERS ${name})
    endif()
    add_library(zorvane_${name} STATIC ${FLOOR_SOURCES})
    # A host may link them into a plug-in, and shared libraries hand out only what is marked for it.
    set_target_properties(zorvane_${name} PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    add_library(zorvane::${name} ALIAS zorvane_${name})
    foreach(folder IN LISTS FLOOR_FOLDERS)
        zorvane_include_root(zorvane_${name} ${folder})
    endforeach()
    target_link_libraries(zorvane_${name} PUBLIC ${FLOOR_USES} PRIVATE zorvane_options)
    target_compile_features(zorvane_${name} PUBLIC cxx_std_20)
endfunction()
