# Debian packages by the usual split: the tool, the shared libraries, what is needed to build with
# them. scripts/package makes and checks them.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL tool library clibrary development)
if(KAVI_BUILD_PYTHON)
    list(APPEND CPACK_COMPONENTS_ALL python)
endif()
set(CPACK_PACKAGE_CONTACT "The kavi maintainers <maintainers@kavi.invalid>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://kavi.invalid/")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(KAVI_SONAME ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(CPACK_DEBIAN_TOOL_PACKAGE_NAME kavi-tn)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION text)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libkavi${KAVI_SONAME})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_CLIBRARY_PACKAGE_NAME libkavi1)
set(CPACK_DEBIAN_CLIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkavi-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-kavi)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS kavi-tn)
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
    ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/python/postinst ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/python/prerm)
if(KAVI_BUILD_PYTHON)
    math(EXPR next "${Python3_VERSION_MINOR} + 1")
    set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
        "python3 (>= 3.${Python3_VERSION_MINOR}), python3 (<< 3.${next})")
endif()

string(CONCAT about
    "kavi turns English text into the words that a speech engine says:\n"
    "numbers, dates, money, times, telephone numbers, abbreviations,\n"
    "symbols and inline markup.")
set(CPACK_COMPONENT_TOOL_DESCRIPTION "English text to speakable words, command line\n${about}")
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "English text to speakable words, libraries\n${about}")
set(CPACK_COMPONENT_CLIBRARY_DESCRIPTION "English text to speakable words, library for C\n${about}")
set(CPACK_COMPONENT_PYTHON_DESCRIPTION "English text to speakable words, Python module\n${about}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "English text to speakable words, development files\n${about}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/triggers)
set(CPACK_DEBIAN_CLIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/triggers)
set(CPACK_COMPONENT_TOOL_DEPENDS library)
set(CPACK_COMPONENT_PYTHON_DEPENDS library)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library clibrary)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_CURRENT_BINARY_DIR})

# Licence, change log and the index of libraries, as every package has them.
set(documents ${CMAKE_CURRENT_BINARY_DIR}/debian)
file(MAKE_DIRECTORY ${documents})
configure_file(cmake/debian/copyright ${documents}/copyright COPYONLY)
foreach(component TOOL LIBRARY CLIBRARY DEVELOPMENT PYTHON)
    string(TOLOWER ${component} name)
    set(KAVI_PACKAGE ${CPACK_DEBIAN_${component}_PACKAGE_NAME})
    configure_file(cmake/debian/changelog.in ${documents}/${name}/changelog.Debian @ONLY)
    execute_process(COMMAND ${GZIP} -9nf ${documents}/${name}/changelog.Debian)
    install(FILES ${documents}/copyright ${documents}/${name}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${KAVI_PACKAGE} COMPONENT ${name}
        EXCLUDE_FROM_ALL)
endforeach()
include(CPack)
