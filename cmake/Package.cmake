# What users get: one folder that runs wherever it is copied, the program beside its data. Installed
# from the starter files, never from the folder of a build, whose data may have been changed.
install(TARGETS OrvanEmporium3 DESTINATION .)
install(DIRECTORY starter/ DESTINATION .)
install(DIRECTORY DESTINATION HTML)
install(DIRECTORY DESTINATION Temp)
install(FILES LICENSE CHANGELOG.md packaging/LIESMICH.txt DESTINATION .)
if(UNIX)
    install(FILES packaging/orvan-emporium3.desktop packaging/icons/orvan-emporium3.svg
        DESTINATION Desktop)
    install(PROGRAMS packaging/menueeintrag DESTINATION Desktop)
endif()

# The portable archive: cmake --build --preset release --target package
string(TOLOWER ${CMAKE_SYSTEM_NAME} system)
set(CPACK_PACKAGE_FILE_NAME OrvanEmporium-3-${PROJECT_VERSION}-${system})
set(CPACK_GENERATOR TGZ)
set(CPACK_STRIP_FILES ON)
include(CPack)
