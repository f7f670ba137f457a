# Settings shared by every target of ours, and the two shapes of target: a folder's static library
# and a test program.

add_library(ostrel_options INTERFACE)
target_compile_definitions(ostrel_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
target_include_directories(ostrel_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(MSVC)
    target_compile_options(ostrel_options INTERFACE /W4 /WX /utf-8 /permissive-)
else()
    target_compile_options(ostrel_options INTERFACE -Wall -Wextra -Wconversion -Werror)
endif()
if(OSTREL_SANITIZE)
    target_compile_options(ostrel_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(ostrel_options INTERFACE -fsanitize=address,undefined)
endif()

# Half a hundred test programs are linked: by the quicker of the two linkers that come with the compiler. It
# knows nothing of the optimiser's files.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold OSTREL_GOLD)
if(OSTREL_GOLD AND NOT CMAKE_INTERPROCEDURAL_OPTIMIZATION)
    target_link_options(ostrel_options INTERFACE -fuse-ld=gold)
endif()

# Qt's headers take most of the time of a build, so they are compiled once a kind of target. The release is
# built without: that shows that every file includes what it uses.
option(OSTREL_PRECOMPILE "Compile Qt's headers once" ON)

# ostrel_precompiled(kind HEADERS header... LINK target...)
function(ostrel_precompiled kind)
    cmake_parse_arguments(ARG "" "" "HEADERS;LINK" ${ARGN})
    if(OSTREL_PRECOMPILE)
        if(NOT EXISTS ${PROJECT_BINARY_DIR}/vacio.cpp) # written anew it would have everything compiled again
            file(WRITE ${PROJECT_BINARY_DIR}/vacio.cpp "")
        endif()
        add_library(precompiled_${kind} OBJECT ${PROJECT_BINARY_DIR}/vacio.cpp)
        target_precompile_headers(precompiled_${kind} PRIVATE
            <QCoreApplication> <QHash> <QVariant> <functional> <memory> ${ARG_HEADERS})
        target_link_libraries(precompiled_${kind} PUBLIC ostrel_options ${ARG_LINK})
    endif()
endfunction()

set(ostrel_window_headers <QBoxLayout> <QKeyEvent> <QLabel> <QLineEdit> <QPushButton> <QTableView>)
ostrel_precompiled(core LINK Qt6::Core)
ostrel_precompiled(widgets HEADERS ${ostrel_window_headers} LINK Qt6::Widgets)

# ostrel_precompile(target core|widgets|pruebas)
function(ostrel_precompile name kind)
    if(OSTREL_PRECOMPILE)
        target_precompile_headers(${name} REUSE_FROM precompiled_${kind})
    endif()
endfunction()

# ostrel_library(name [MOC] SOURCES file... LINK target...): the link line is the architecture. MOC for
# folders with QObject classes of their own.
function(ostrel_library name)
    cmake_parse_arguments(ARG "MOC" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_MOC})
    target_link_libraries(${name} PUBLIC ostrel_options ${ARG_LINK})
    if(ARG_MOC)
        ostrel_precompile(${name} widgets)
    else()
        ostrel_precompile(${name} core)
    endif()
endfunction()

# ostrel_test(name [FOLDER folder/] LINK target...): one program from tests/<folder/name>.cpp, run without a display.
function(ostrel_test name)
    cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_FOLDER}${name}.cpp ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE ostrel_options Qt6::Test ${ARG_LINK})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    # QTest's header has more in it where the network is linked
    if("${ARG_LINK}" MATCHES "_screens|app" AND NOT "${ARG_LINK}" MATCHES "Network")
        ostrel_precompile(${name} pruebas)
    else()
        ostrel_precompile(${name} core)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
