# Run by CPack on the folder that becomes setup.exe: takes out what is the user's from the first start on. The installer
# lays that into place itself where it is not there, and the uninstaller does not have it in its list.
file(REMOVE_RECURSE ${CPACK_TEMPORARY_DIRECTORY}/save.json ${CPACK_TEMPORARY_DIRECTORY}/profiles)
