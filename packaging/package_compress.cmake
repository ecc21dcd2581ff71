# SPDX-License-Identifier: MIT
# Compresses the man pages and the change log of what CPack has laid out for a Debian package, as is the custom there.
if(CPACK_GENERATOR STREQUAL DEB)
    file(GLOB_RECURSE pages ${CPACK_TEMPORARY_DIRECTORY}/*.1 ${CPACK_TEMPORARY_DIRECTORY}/changelog)
    # -n leaves out the time, so that the same sources make the same package.
    execute_process(COMMAND gzip -9n ${pages} COMMAND_ERROR_IS_FATAL ANY)
endif()
