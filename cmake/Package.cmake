# What users get: one folder that runs wherever it is copied, the program beside its data. Installed
# from the starter files, never from the folder of a build, whose data may have been changed.
install(TARGETS OrvanEmporium3 DESTINATION .)
install(DIRECTORY starter/ DESTINATION .)
install(DIRECTORY DESTINATION HTML)
install(DIRECTORY DESTINATION Temp)
install(FILES LICENSE CHANGELOG.md DESTINATION .)
if(WIN32)
    install(FILES packaging/windows/LIESMICH.txt DESTINATION .)
    install(FILES packaging/windows/Lizenzen.txt LICENSE DESTINATION Lizenzen)
    install(DIRECTORY ${CMAKE_PREFIX_PATH}/licences/ DESTINATION Lizenzen)
    set(CPACK_GENERATOR ZIP)
else()
    install(FILES packaging/LIESMICH.txt DESTINATION .)
    install(FILES packaging/orvan-emporium3.desktop packaging/icons/orvan-emporium3.svg
        DESTINATION Desktop)
    install(PROGRAMS packaging/menueeintrag DESTINATION Desktop)
    set(CPACK_GENERATOR TGZ)
endif()

# The portable archive: the target "package".
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
