# SPDX-License-Identifier: BSD-3-Clause
# The library is built in layers, one folder each, lowest first:
#
#   host (libnorvanehost.so) < framework < buttons < enums < numeric < text, meters, plot, datetime,
#   sliders < editors < designer
#
# Each folder is an object library that links only the layers below it. A folder's own headers,
# private ones included, are seen by the layers above it; an #include against the order finds no
# header and fails to build. Everything is linked into the one libstandaloneplugins.so, whose users
# (applications, tests, forms) see only the public headers, gathered in one folder of the build.

set(KX_PUBLIC_INCLUDE_DIR ${CMAKE_BINARY_DIR}/include/standaloneplugins)
set(KX_HOST_INCLUDE_DIR ${CMAKE_BINARY_DIR}/include/norvanehost)
file(MAKE_DIRECTORY ${KX_PUBLIC_INCLUDE_DIR} ${KX_HOST_INCLUDE_DIR})
set_property(GLOBAL PROPERTY KX_PUBLIC_HEADERS "")
set_property(GLOBAL PROPERTY KX_HOST_PUBLIC_HEADERS "")
set_property(GLOBAL PROPERTY KX_LAYER_SOURCE_DIRS "")

# kx_publish_headers(<STANDALONEPLUGINS|HOST> <files...>)
# Links each public header (every header but the _p.h ones) into the library's public folder, which
# is what users of the library include from, and records it for installation.
function(kx_publish_headers library)
    if(library STREQUAL "HOST")
        set(dir ${KX_HOST_INCLUDE_DIR})
        set(list KX_HOST_PUBLIC_HEADERS)
    else()
        set(dir ${KX_PUBLIC_INCLUDE_DIR})
        set(list KX_PUBLIC_HEADERS)
    endif()
    foreach(file IN LISTS ARGN)
        if(file MATCHES "\\.h$" AND NOT file MATCHES "_p\\.h$")
            get_filename_component(header ${file} ABSOLUTE)
            get_filename_component(headerName ${file} NAME)
            file(CREATE_LINK ${header} ${dir}/${headerName} SYMBOLIC)
            set_property(GLOBAL APPEND PROPERTY ${list} ${header})
        endif()
    endforeach()
endfunction()

# kx_add_layer(<name> SOURCES <files...> [LAYERS <lower layers...>] [LIBS <other libraries...>])
# The object library kx_<name>, linked into libstandaloneplugins.so.
function(kx_add_layer name)
    cmake_parse_arguments(L "" "" "SOURCES;LAYERS;LIBS" ${ARGN})
    set(target kx_${name})
    add_library(${target} OBJECT ${L_SOURCES})
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    # The objects end up in libstandaloneplugins.so: its export macro exports.
    target_compile_definitions(${target} PRIVATE standaloneplugins_EXPORTS)
    target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_BINARY_DIR}/include)
    target_link_libraries(${target} PUBLIC norvanehost Qt5::Core Qt5::Gui Qt5::Widgets ${L_LIBS})
    foreach(layer IN LISTS L_LAYERS)
        target_link_libraries(${target} PUBLIC kx_${layer})
    endforeach()
    target_link_libraries(standaloneplugins PRIVATE ${target})
    set_property(GLOBAL APPEND PROPERTY KX_LAYER_SOURCE_DIRS ${CMAKE_CURRENT_SOURCE_DIR})

    kx_publish_headers(STANDALONEPLUGINS ${L_SOURCES})
endfunction()
