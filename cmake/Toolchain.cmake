# Compiler, warnings, sanitizers, cache and linker: the same for all our targets.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 14)
    message(FATAL_ERROR "GCC before 14 destroys temporaries of a statement with co_await twice; use Clang 19.")
endif()

set(CMAKE_CXX_STANDARD 23)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(QT_QML_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml)

# Light optimisation also in daily work, because the tests process large inputs; backtraces stay readable.
set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_SOURCE_DIR}/cmake/compile ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR})
    set(CMAKE_C_COMPILER_LAUNCHER ${CMAKE_CXX_COMPILER_LAUNCHER})
endif()
find_program(LLD NAMES ld.lld-19 ld.lld)
if(LLD)
    add_link_options(-fuse-ld=lld)
endif()

add_library(velmora_options INTERFACE)
target_include_directories(velmora_options INTERFACE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/cmake)
target_compile_definitions(velmora_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS)
target_compile_options(velmora_options INTERFACE
    # Some libraries require it; targets share a precompiled header only if they agree on it.
    -pthread
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # Designated initialisers leave out the members that keep their defaults.
    -Wno-missing-field-initializers)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # A precompiled header without a time stamp can be cached, and one that contains the text of its files can be used in
    # another checkout.
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-Xclang -fno-pch-timestamp -Xclang -fmodules-embed-all-files>"
        -fdebug-compilation-dir=.)
endif()

if(VELMORA_SANITIZE)
    add_compile_options(-fsanitize=${VELMORA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VELMORA_SANITIZE})
endif()
if(VELMORA_COVERAGE)
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()
