# SPDX-License-Identifier: BSD-3-Clause
# Installation: the widget library and the host layer, their public headers (no _p.h), a CMake
# package (find_package(StandalonePlugins) gives StandalonePlugins::standaloneplugins), a pkg-config
# file, and the library once more in the place Qt Designer loads plug-ins from.
include(CMakePackageConfigHelpers)

set(KX_CMAKE_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/StandalonePlugins)

install(TARGETS standaloneplugins norvanehost EXPORT StandalonePluginsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
get_property(kxPublicHeaders GLOBAL PROPERTY KX_PUBLIC_HEADERS)
install(FILES ${kxPublicHeaders} ${CMAKE_BINARY_DIR}/include/standaloneplugins_export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/standaloneplugins)
get_property(kxHostHeaders GLOBAL PROPERTY KX_HOST_PUBLIC_HEADERS)
install(FILES ${kxHostHeaders} ${CMAKE_BINARY_DIR}/include/norvanehost_export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/norvanehost)

install(EXPORT StandalonePluginsTargets NAMESPACE StandalonePlugins:: DESTINATION ${KX_CMAKE_PACKAGE_DIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/StandalonePluginsConfig.cmake.in
    ${CMAKE_BINARY_DIR}/StandalonePluginsConfig.cmake
    INSTALL_DESTINATION ${KX_CMAKE_PACKAGE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/StandalonePluginsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/StandalonePluginsConfig.cmake
              ${CMAKE_BINARY_DIR}/StandalonePluginsConfigVersion.cmake
    DESTINATION ${KX_CMAKE_PACKAGE_DIR})

# The prefix is worked out from where the file lies, so that it holds for any install prefix.
file(RELATIVE_PATH KX_PC_PREFIX_FROM_PCFILEDIR /root/${CMAKE_INSTALL_LIBDIR}/pkgconfig /root)
configure_file(${CMAKE_CURRENT_LIST_DIR}/standaloneplugins.pc.in ${CMAKE_BINARY_DIR}/standaloneplugins.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/standaloneplugins.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# Qt Designer loads the plug-ins of Qt's own plug-in folder and of the folders QT_PLUGIN_PATH names.
# An install into a system prefix links a plug-in into Qt's folder; an install into any other prefix
# links it into <prefix>/<libdir>/qt5/plugins/designer and says which line makes Designer look there.
# The prefix is the one given to `cmake --install`, so both are decided at install time.
get_target_property(kxQmake Qt5::qmake IMPORTED_LOCATION)
execute_process(COMMAND ${kxQmake} -query QT_INSTALL_PLUGINS OUTPUT_VARIABLE kxQtPlugins OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${kxQmake} -query QT_INSTALL_BINS OUTPUT_VARIABLE kxQtBins OUTPUT_STRIP_TRAILING_WHITESPACE)

# kx_install_designer_plugin(<target> <installed folder, relative to the prefix> [ANNOUNCE])
# Links the installed library into Designer's plug-in folder; ANNOUNCE prints the QT_PLUGIN_PATH
# line for a prefix Designer does not search.
function(kx_install_designer_plugin target installedDir)
    set(announce "")
    if(ARGN STREQUAL "ANNOUNCE")
        set(announce "
        if(kxPluginPath)
            message(\"Qt Designer finds the widgets once this line is in your shell's start-up file:\")
            message(\"export QT_PLUGIN_PATH=\${kxPluginPath}\\\${QT_PLUGIN_PATH:+:\\\$QT_PLUGIN_PATH}\")
        endif()")
    endif()
    install(CODE "
        set(kxPrefix \"\${CMAKE_INSTALL_PREFIX}\")
        if(kxPrefix STREQUAL \"/usr\" OR kxPrefix STREQUAL \"/usr/local\")
            set(kxDesignerDir \"\$ENV{DESTDIR}${kxQtPlugins}/designer\")
            set(kxPluginPath \"\")
        else()
            set(kxDesignerDir \"\$ENV{DESTDIR}\${kxPrefix}/${CMAKE_INSTALL_LIBDIR}/qt5/plugins/designer\")
            set(kxPluginPath \"\${kxPrefix}/${CMAKE_INSTALL_LIBDIR}/qt5/plugins\")
        endif()
        file(MAKE_DIRECTORY \"\${kxDesignerDir}\")
        message(STATUS \"Installing: \${kxDesignerDir}/$<TARGET_FILE_NAME:${target}>\")
        file(CREATE_LINK \"\$ENV{DESTDIR}\${kxPrefix}/${installedDir}/$<TARGET_FILE_NAME:${target}>\"
             \"\${kxDesignerDir}/$<TARGET_FILE_NAME:${target}>\" SYMBOLIC)${announce}
    ")
endfunction()

kx_install_designer_plugin(standaloneplugins ${CMAKE_INSTALL_LIBDIR} ANNOUNCE)

# The front panel's form templates, for Designer's "New Form" dialog. Designer lists the *.ui files of
# <the folder Designer runs from>/templates and of ~/.designer/templates. A system install puts them in
# the first; any other prefix keeps them in <prefix>/share/standaloneplugins/templates and, when the
# prefix is in the user's home, links them into ~/.designer/templates as well.
file(GLOB KX_FORM_TEMPLATES ${PROJECT_SOURCE_DIR}/designer/templates/*.ui)
install(FILES ${KX_FORM_TEMPLATES} DESTINATION ${CMAKE_INSTALL_DATADIR}/standaloneplugins/templates)
install(CODE "
    set(kxPrefix \"\${CMAKE_INSTALL_PREFIX}\")
    set(kxTemplates \"\$ENV{DESTDIR}\${kxPrefix}/${CMAKE_INSTALL_DATADIR}/standaloneplugins/templates\")
    set(kxDesignerTemplates \"\")
    if(kxPrefix STREQUAL \"/usr\" OR kxPrefix STREQUAL \"/usr/local\")
        set(kxDesignerTemplates \"\$ENV{DESTDIR}${kxQtBins}/templates\")
    elseif(DEFINED ENV{HOME} AND NOT \"\$ENV{HOME}\" STREQUAL \"\" AND kxPrefix MATCHES \"^\$ENV{HOME}/\")
        set(kxDesignerTemplates \"\$ENV{HOME}/.designer/templates\")
    endif()
    if(kxDesignerTemplates)
        file(MAKE_DIRECTORY \"\${kxDesignerTemplates}\")
        file(GLOB kxForms \"\${kxTemplates}/*.ui\")
        foreach(kxForm IN LISTS kxForms)
            get_filename_component(kxName \"\${kxForm}\" NAME)
            message(STATUS \"Installing: \${kxDesignerTemplates}/\${kxName}\")
            file(CREATE_LINK \"\${kxForm}\" \"\${kxDesignerTemplates}/\${kxName}\" SYMBOLIC)
        endforeach()
    else()
        message(\"Qt Designer offers the front-panel form templates once \${kxTemplates} is among its template paths (Edit > Preferences > Template Paths).\")
    endif()
")
