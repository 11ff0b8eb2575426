# What every target of the project is built with. Link to `project_options` privately.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Everything lies side by side, so that front ends find their shared objects next to the host's.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE ccache)
if(CCACHE)
    # The rest is what lets it keep files that are compiled with precompiled headers.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        add_compile_options(-fpch-preprocess)
    else()
        add_compile_options(-Xclang -fno-pch-timestamp)
    endif()
endif()

find_package(Threads REQUIRED)

add_library(project_options INTERFACE)
target_compile_options(project_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Of these, those about a short literal in front of a string are false.
    target_compile_options(project_options INTERFACE -Wno-restrict)
endif()
if(DISPLAYAPI_WERROR)
    target_compile_options(project_options INTERFACE -Werror)
endif()
target_link_libraries(project_options INTERFACE Threads::Threads)

if(DISPLAYAPI_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(DISPLAYAPI_SANITIZE STREQUAL "address")
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -fno-optimize-sibling-calls)
    add_link_options(-fsanitize=address,undefined)
elseif(DISPLAYAPI_SANITIZE STREQUAL "thread")
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer -fno-optimize-sibling-calls)
    add_link_options(-fsanitize=thread)
elseif(NOT DISPLAYAPI_SANITIZE STREQUAL "")
    message(FATAL_ERROR "DISPLAYAPI_SANITIZE is '${DISPLAYAPI_SANITIZE}'; it may be empty, address or thread")
endif()

# For folders whose code is seldom the busy part: with sanitizers, optimizing it takes the compiler two thirds of its time.
macro(displayapi_compile_quickly)
    if(NOT DISPLAYAPI_SANITIZE STREQUAL "" AND NOT DISPLAYAPI_FUZZ)
        add_compile_options(-O0)
    endif()
endmacro()

# displayapi_compile_together(TARGET [ALONE FILES...]): the files of each folder become one, which is read and checked by
# clang-tidy in a fraction of the time, so what a folder's files keep to themselves has different names. The release
# preset compiles each file alone, and so sees that it includes what it uses.
function(displayapi_compile_together target)
    if(NOT DISPLAYAPI_COMPILE_TOGETHER)
        return()
    endif()
    cmake_parse_arguments(ARG "" "" "ALONE" ${ARGN})
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    get_target_property(sources ${target} SOURCES)
    list(REMOVE_ITEM sources ${ARG_ALONE})
    foreach(source IN LISTS sources)
        cmake_path(GET source PARENT_PATH folder)
        string(MAKE_C_IDENTIFIER "${target}/${folder}" group)
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
    endforeach()
endfunction()
