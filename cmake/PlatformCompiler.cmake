# Language level, warnings and instrumentation that every target of the project shares.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

find_program(PLATFORM_CCACHE ccache)
mark_as_advanced(PLATFORM_CCACHE)
if(PLATFORM_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${PLATFORM_CCACHE}")
endif()

add_compile_definitions(
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_KEYWORDS # the public headers must suit applications that switch the keywords off
    QT_DEPRECATED_WARNINGS)

add_compile_options(
    -Wall
    -Wextra
    -Wpedantic
    -Wcast-align
    -Wnon-virtual-dtor
    -Woverloaded-virtual
    -Wshadow
    -Wsuggest-override)
if(PLATFORM_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()

if(PLATFORM_SANITIZE)
    # float-cast-overflow is not part of "undefined" with g++.
    add_compile_options(
        -fsanitize=address,undefined,float-cast-overflow
        -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined,float-cast-overflow)
endif()

if(PLATFORM_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
