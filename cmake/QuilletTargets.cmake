# What every target of this project is compiled with.
add_library(quillet_options INTERFACE)
target_compile_definitions(quillet_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    QT_NO_CAST_FROM_BYTEARRAY
    QUILLET_VERSION="${PROJECT_VERSION}")
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(quillet_options INTERFACE
        -Wall -Wextra -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
    if(QUILLET_WERROR)
        target_compile_options(quillet_options INTERFACE -Werror)
    endif()
    if(QUILLET_SANITIZE)
        target_compile_options(quillet_options INTERFACE
            -fsanitize=${QUILLET_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        set(quillet_pointer_checks null,alignment,object-size,vptr)
        target_compile_options(quillet_options INTERFACE -fno-sanitize=${quillet_pointer_checks})
        add_library(quillet_pointer_options INTERFACE)
        target_compile_options(quillet_pointer_options INTERFACE
            -fsanitize=${quillet_pointer_checks} -fno-sanitize-recover=${quillet_pointer_checks})
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
            # Sanitizers make GCC see values as unset that are set.
            target_compile_options(quillet_options INTERFACE -Wno-maybe-uninitialized)
        endif()
        target_link_options(quillet_options INTERFACE -fsanitize=${QUILLET_SANITIZE})
    endif()
    if(QUILLET_COVERAGE)
        target_link_options(quillet_options INTERFACE --coverage)
    endif()
endif()

# The libraries that handle what is in files; the others would only take more time to compile.
set(quillet_pointer_checked Support Xml Model Files List)

# What most sources of any target include, and those named as well.
function(quillet_headers target)
    if(QUILLET_PCH)
        target_precompile_headers(${target} PRIVATE
            <QByteArray> <QList> <QObject> <QString> <QUrl> <algorithm> <functional> <memory>
            <optional> <vector> ${ARGN})
    endif()
endfunction()

# quillet_library(NAME SOURCES ... LINK ... [HEADERS ...]): the static library quillet_<name>, alias Quillet::NAME.
function(quillet_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK;HEADERS" ${ARGN})
    string(TOLOWER quillet_${name} target)
    add_library(${target} STATIC ${arg_SOURCES})
    add_library(Quillet::${name} ALIAS ${target})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC ${arg_LINK} PRIVATE quillet_options)
    if(QUILLET_SANITIZE AND QUILLET_SANITIZE_POINTERS AND name IN_LIST quillet_pointer_checked)
        target_link_libraries(${target} PRIVATE quillet_pointer_options) # behind the others
    endif()
    quillet_headers(${target} ${arg_HEADERS})
endfunction()

# The same for what tests are made of, read once for all of them.
function(quillet_test_headers target)
    if(QUILLET_PCH)
        target_precompile_headers(${target} REUSE_FROM quillet_testing)
    endif()
endfunction()

# quillet_test(FOLDER SOURCES ... LINK ...): one test executable of Qt Test classes.
function(quillet_test folder)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    set(target test_${folder})
    add_executable(${target} ${arg_SOURCES})
    target_link_libraries(${target} PRIVATE ${arg_LINK} quillet_testing quillet_options)
    quillet_test_headers(${target})
    add_test(NAME ${folder} COMMAND ${target})
    set_tests_properties(${folder} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QTEST_DISABLE_STACK_DUMP=1" TIMEOUT 300)
endfunction()
