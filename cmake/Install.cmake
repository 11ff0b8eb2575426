# What `cmake --install` puts where, so that find_package(DisplayAPI) finds it.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

# One folder for all headers: names such as toolkit/ are not for the system's include folder itself.
set(HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/displayapi-${PROJECT_VERSION_MAJOR})
set(PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/DisplayAPI)

set_target_properties(displayapi PROPERTIES EXPORT_NAME DisplayAPI)
foreach(part platform host languages variants phone kit)
    set_target_properties(displayapi_${part} PROPERTIES EXPORT_NAME ${part})
endforeach()

# What draws and front ends are loaded from beside the host's shared object, and everything finds everything wherever it
# is moved to.
set_target_properties(displayapi displayapi_host displayapi_drawing displayapi_languages displayapi_variants
    displayapi_web displayapi_script PROPERTIES INSTALL_RPATH $ORIGIN)
file(RELATIVE_PATH FROM_BIN_TO_LIB ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(phone PROPERTIES INSTALL_RPATH $ORIGIN/${FROM_BIN_TO_LIB})

install(TARGETS
    displayapi displayapi_platform displayapi_host displayapi_languages displayapi_variants displayapi_phone displayapi_kit
    EXPORT DisplayAPI
    INCLUDES DESTINATION ${HEADERS})
install(TARGETS displayapi_drawing displayapi_web displayapi_script phone LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${HEADERS} FILES_MATCHING PATTERN *.h)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/ DESTINATION ${HEADERS} FILES_MATCHING PATTERN *.h)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/kit DESTINATION ${HEADERS} FILES_MATCHING PATTERN *.h)
install(FILES ${PROJECT_SOURCE_DIR}/host/Phone.h DESTINATION ${HEADERS}/host)
install(FILES ${PROJECT_SOURCE_DIR}/host/frontend/Wire.h DESTINATION ${HEADERS}/host/frontend)
install(FILES ${PROJECT_SOURCE_DIR}/host/input/CallSigns.h DESTINATION ${HEADERS}/host/input)
install(FILES ${PROJECT_SOURCE_DIR}/host/languages/Languages.h DESTINATION ${HEADERS}/host/languages)
# What lies beside the shared objects: catalogues and a font.
install(DIRECTORY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/displayapi-${PROJECT_VERSION_MAJOR}
    DESTINATION ${CMAKE_INSTALL_LIBDIR})

# phonectl looks for its package in PREFIX/share.
set(PYTHON_CLIENT ${PROJECT_SOURCE_DIR}/clients/python)
install(DIRECTORY ${PYTHON_CLIENT}/displayapi DESTINATION share/displayapi-${PROJECT_VERSION_MAJOR}/python
    FILES_MATCHING PATTERN *.py PATTERN py.typed PATTERN __pycache__ EXCLUDE)
install(PROGRAMS ${PYTHON_CLIENT}/bin/phonectl DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PYTHON_CLIENT}/completion/phonectl DESTINATION share/bash-completion/completions)
install(FILES ${PYTHON_CLIENT}/man/phonectl.1 ${PROJECT_SOURCE_DIR}/docs/man/phone.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

install(FILES ${PROJECT_SOURCE_DIR}/THIRD-PARTY-NOTICES.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

install(EXPORT DisplayAPI NAMESPACE DisplayAPI:: DESTINATION ${PACKAGE} FILE DisplayAPITargets.cmake)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/DisplayAPIConfig.cmake.in DisplayAPIConfig.cmake
    INSTALL_DESTINATION ${PACKAGE})
write_basic_package_version_file(DisplayAPIConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/DisplayAPIConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/DisplayAPIConfigVersion.cmake
    DESTINATION ${PACKAGE})
