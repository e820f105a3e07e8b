# Headers, libraries, the tool and its companions in their usual places; the same package from the
# build tree; an uninstall target.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)
find_program(GZIP gzip REQUIRED)

set(KAVI_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/kavi)
set(KAVI_LIBRARIES kavi_engine kavi_services kavi_host)
foreach(library ${KAVI_LIBRARIES} kavi_tn)
    string(REPLACE kavi_ "" name ${library})
    set_target_properties(${library} PROPERTIES EXPORT_NAME ${name})
    target_include_directories(${library} INTERFACE
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/kavi>)
endforeach()

install(TARGETS ${KAVI_LIBRARIES} kavi_tn EXPORT kaviTargets
    LIBRARY COMPONENT library NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development)
install(FILES
    tts-common/inc/MemoryStack.h tts-common/inc/TtsString.h tts-common/inc/EngLexicon.h
    tts-common/inc/kavi_compiler.h
    tts-common/front_end_share/inc/ShareObj.h
    tts-text/tts-tn/inc/post_pro_tn_eng.h tts-text/tts-tn/inc/PostProcTN.h
    tts-text/tts-host/inc/tts_host.h tts-text/tts-host/inc/tts_findings.h
    tts-text/tts-host/inc/tts_explain.h tts-text/tts-host/inc/tts_plain.h tts-text/tts-host/inc/tts_ssml.h
    tts-text/tts-host/inc/tts_places.h tts-text/tts-host/inc/tts_names.h tts-text/tts-host/inc/tts_rewriter.h
    tts-text/tts-host/inc/tts_stream.h tts-text/tts-host/inc/tts_text_buffer.h
    tts-text/tts-everyday/inc/tts_everyday.h tts-text/tts-everyday/inc/tts_lexicon.h
    ${CMAKE_CURRENT_BINARY_DIR}/include/kavi_version.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kavi COMPONENT development)
if(TARGET kavi_c)
    set_target_properties(kavi_c PROPERTIES EXPORT_NAME c)
    set_target_properties(kavi_c_static PROPERTIES EXPORT_NAME c_static)
    foreach(library kavi_c kavi_c_static)
        target_include_directories(${library} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    endforeach()
    install(TARGETS kavi_c kavi_c_static EXPORT kaviTargets
        LIBRARY COMPONENT clibrary NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development)
    install(FILES tts-text/tts-c/inc/kavi.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
endif()
install(EXPORT kaviTargets NAMESPACE kavi:: DESTINATION ${KAVI_PACKAGE_DIR} COMPONENT development)
export(EXPORT kaviTargets NAMESPACE kavi:: FILE ${CMAKE_CURRENT_BINARY_DIR}/kaviTargets.cmake)
configure_package_config_file(cmake/kaviConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/kaviConfig.cmake
    INSTALL_DESTINATION ${KAVI_PACKAGE_DIR})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/kaviConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kaviConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/kaviConfigVersion.cmake
    DESTINATION ${KAVI_PACKAGE_DIR} COMPONENT development)

# pkg-config: installed, where a file finds its prefix from its own place, and uninstalled. kavi is the
# C++ libraries, kavi-c the one for C. Folders may have blanks in their names.
file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
function(kavi_pkg_config name libraries installed_include build_includes)
    set(KAVI_PC_NAME ${name})
    set(KAVI_PC_LIBS ${libraries})
    set(KAVI_PC_CFLAGS "\"-I\${pcfiledir}/${up}${installed_include}\"")
    set(KAVI_PC_LIBDIR "\${pcfiledir}/${up}${CMAKE_INSTALL_LIBDIR}")
    configure_file(cmake/kavi.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
    list(TRANSFORM build_includes REPLACE "(.+)" "\"-I\\1\"")
    list(JOIN build_includes " " KAVI_PC_CFLAGS)
    set(KAVI_PC_LIBDIR ${CMAKE_CURRENT_BINARY_DIR})
    configure_file(cmake/kavi.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}-uninstalled.pc @ONLY)
endfunction()
set(KAVI_PC_STATIC "")
kavi_pkg_config(kavi "-lkavi_host -lkavi_services" ${CMAKE_INSTALL_INCLUDEDIR}/kavi
    "${KAVI_HOST_INC};${KAVI_INCLUDES}")
if(TARGET kavi_c)
    set(KAVI_PC_STATIC -lstdc++)
    kavi_pkg_config(kavi-c -lkavi ${CMAKE_INSTALL_INCLUDEDIR} ${KAVI_C_INC})
endif()

if(KAVI_BUILD_TOOLS)
    # Shared libraries are found from the tool's own place, whatever the prefix.
    file(RELATIVE_PATH libraries_from_tool /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(kavi-tn PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_tool}")
    install(TARGETS kavi-tn RUNTIME COMPONENT tool)
    set(page ${CMAKE_CURRENT_BINARY_DIR}/kavi-tn.1)
    configure_file(tools/kavi-tn/kavi-tn.1 ${page} COPYONLY)
    execute_process(COMMAND ${GZIP} -9nfk ${page})
    install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
    set(completions tools/kavi-tn/completions)
    install(FILES ${completions}/kavi-tn.bash RENAME kavi-tn
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tool)
    install(FILES ${completions}/_kavi-tn
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT tool)
    install(FILES ${completions}/kavi-tn.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tool)
endif()

if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(uninstall COMMAND ${CMAKE_COMMAND} -P
        ${CMAKE_CURRENT_SOURCE_DIR}/cmake/uninstall.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/install_manifest.txt)
    include(cmake/debian.cmake)
endif()
