# What holds for every target: the language, the warnings, the instrumented builds, where results go.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

include(GNUInstallDirs)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

find_program(ZN_CCACHE ccache)
if(ZN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${ZN_CCACHE}")
endif()

add_compile_options(-Wall -Wextra -Wshadow -Wconversion)
if(ZN_WERROR)
    add_compile_options(-Werror)
endif()

# What is built tells nothing of where it was built. Coverage is counted by the paths of the sources.
if(NOT ZN_COVERAGE)
    add_compile_options("-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
endif()

if(ZN_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
    add_compile_options(${sanitizers} -fno-omit-frame-pointer)
    add_link_options(${sanitizers})
endif()

# The fuzzer itself is linked to its program alone. Comparisons are not traced: the dictionary knows the words
# that matter, and most of the comparisons are the sanitizers' own.
if(ZN_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp,trace-div,trace-gep)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()

if(ZN_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

# zn_find_sources(VARIABLE PATTERN...): the files below the project that match, looked for at every build.
function(zn_find_sources variable)
    list(TRANSFORM ARGN PREPEND "${PROJECT_SOURCE_DIR}/")
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${ARGN})
    set(${variable} ${found} PARENT_SCOPE)
endfunction()
