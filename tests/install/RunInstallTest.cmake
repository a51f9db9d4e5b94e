# SPDX-License-Identifier: BSD-3-Clause
# Installs the build into a fresh prefix and uses it from there, as a user of the library would.
function(kx_run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed (${result}): ${ARGN}\n${out}\n${err}")
    endif()
    set(kx_output "${out}${err}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${KX_PREFIX} ${KX_CONSUMER_BUILD})
kx_run(${CMAKE_COMMAND} --install ${KX_BUILD_DIR} --prefix ${KX_PREFIX})
if(NOT kx_output MATCHES "export QT_PLUGIN_PATH=${KX_PREFIX}/")
    message(FATAL_ERROR "the install does not say how Designer finds the plug-in:\n${kx_output}")
endif()

file(GLOB templates ${KX_PREFIX}/share/standaloneplugins/templates/*.ui)
list(LENGTH templates templateCount)
if(NOT templateCount EQUAL 2 OR NOT kx_output MATCHES "Template Paths")
    message(FATAL_ERROR "the form templates are not installed, or not announced:\n${kx_output}")
endif()

file(GLOB privateHeaders ${KX_PREFIX}/include/*/*_p.h)
if(privateHeaders)
    message(FATAL_ERROR "private headers installed: ${privateHeaders}")
endif()

# Designer's plug-in folder under the prefix, as the install announced it.
string(REGEX MATCH "QT_PLUGIN_PATH=([^$]*)\\$" unused "${kx_output}")
set(pluginPath ${CMAKE_MATCH_1})
set(ENV{QT_PLUGIN_PATH} ${pluginPath})
set(ENV{KX_INSTALL_PREFIX} ${KX_PREFIX})
kx_run(${KX_PLUGIN_TEST})
message("${kx_output}")

# Qt's plug-in tool reads what the installed plug-in says of itself.
kx_run(${KX_QTPLUGININFO} ${pluginPath}/designer/libstandaloneplugins.so)
message("qtplugininfo:\n${kx_output}")
if(NOT kx_output MATCHES "IID \"org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface\""
   OR NOT kx_output MATCHES "Kexal \\(Stand-alone\\)" OR NOT kx_output MATCHES "QKXWheelEnum"
   OR kx_output MATCHES "invalid")
    message(FATAL_ERROR "qtplugininfo does not read the collection's metadata")
endif()

# Qt Designer itself, started on the installed plug-in with the plug-in loader's log on. It runs until
# stopped, so it is given a few seconds to load its plug-ins. Its settings go to a folder of its own.
# A sanitized build's library only loads into programs built with the same sanitizers, which Designer
# is not.
if(KX_CONSUMER_FLAGS)
    message("Qt Designer is not started on a sanitized build")
else()
    set(ENV{QT_DEBUG_PLUGINS} 1)
    set(ENV{QT_QPA_PLATFORM} offscreen)
    set(ENV{XDG_CONFIG_HOME} ${KX_PREFIX}/designer-settings)
    set(ENV{HOME} ${KX_PREFIX}/designer-home)
    file(MAKE_DIRECTORY $ENV{XDG_CONFIG_HOME} $ENV{HOME})
    execute_process(COMMAND ${KX_DESIGNER} TIMEOUT 15 OUTPUT_VARIABLE out ERROR_VARIABLE err)
    unset(ENV{QT_DEBUG_PLUGINS})
    set(designerLog "${out}${err}")
    message("Qt Designer's plug-in log:\n${designerLog}")
    # The loader names the library behind the link in Designer's folder: the installed one.
    string(REGEX MATCH "loaded library \"([^\"]*libstandaloneplugins\\.so)\"" loaded "${designerLog}")
    string(FIND "${CMAKE_MATCH_1}" "${KX_PREFIX}/" atPrefix)
    if(NOT loaded OR NOT atPrefix EQUAL 0)
        message(FATAL_ERROR "Qt Designer did not load the installed collection")
    endif()
    string(REGEX MATCHALL "[^\n]*([Ww]arning|[Cc]annot|[Ff]ailed|not a valid|QFormBuilder)[^\n]*" problems "${designerLog}")
    if(problems)
        message(FATAL_ERROR "Qt Designer warned while loading the collection:\n${problems}")
    endif()
endif()

# An application of its own, outside this tree, against the installed package.
kx_run(${CMAKE_COMMAND} -S ${KX_CONSUMER_SOURCE} -B ${KX_CONSUMER_BUILD} -G ${KX_GENERATOR}
       -DCMAKE_PREFIX_PATH=${KX_PREFIX} "-DCMAKE_CXX_FLAGS=${KX_CONSUMER_FLAGS}"
       "-DCMAKE_EXE_LINKER_FLAGS=${KX_CONSUMER_FLAGS}")
kx_run(${CMAKE_COMMAND} --build ${KX_CONSUMER_BUILD})
kx_run(${KX_CONSUMER_BUILD}/consumer)
if(NOT kx_output MATCHES "consumer: 2.500")
    message(FATAL_ERROR "the consumer did not show its value:\n${kx_output}")
endif()

# The same flags through pkg-config.
set(ENV{PKG_CONFIG_PATH} ${KX_PREFIX}/lib/pkgconfig)
file(GLOB pcFiles ${KX_PREFIX}/lib*/pkgconfig/standaloneplugins.pc ${KX_PREFIX}/lib/*/pkgconfig/standaloneplugins.pc)
list(GET pcFiles 0 pcFile)
get_filename_component(pcDir ${pcFile} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pcDir})
kx_run(pkg-config --cflags --libs standaloneplugins)
foreach(header standaloneplugins/QKXNumeric.h norvanehost/ContainerImpl.h)
    get_filename_component(folder ${header} DIRECTORY)
    # (A match's groups are only there after the if() that matched.)
    set(folderDir "")
    if(kx_output MATCHES "-I([^ \n]*/${folder})[ \n]")
        set(folderDir ${CMAKE_MATCH_1})
    endif()
    if(NOT folderDir OR NOT EXISTS ${folderDir}/../${header})
        message(FATAL_ERROR "pkg-config names no include folder holding ${header}:\n${kx_output}")
    endif()
endforeach()
set(libDir "")
if(kx_output MATCHES "-L([^ \n]+)[ \n]")
    set(libDir ${CMAKE_MATCH_1})
endif()
if(NOT libDir OR NOT EXISTS ${libDir}/libstandaloneplugins.so)
    message(FATAL_ERROR "pkg-config names no folder holding the library:\n${kx_output}")
endif()
message(STATUS "installed and used from ${KX_PREFIX}")
