# SPDX-License-Identifier: MIT
# Refuses to make a Debian package that would lack a program or name nothing that the programs need. CPack reads this
# before it begins.
if(CPACK_GENERATOR STREQUAL DEB)
    if(CPACK_TIDEWALK_NOT_BUILT)
        message(FATAL_ERROR "No package can be made, as this was not built: ${CPACK_TIDEWALK_NOT_BUILT}. "
                            "After packaging/install-packages build, configure and build again.")
    endif()
    foreach(tool IN ITEMS dpkg-deb dpkg-shlibdeps file gzip)
        find_program(path_of_${tool} ${tool})
        if(NOT path_of_${tool})
            message(FATAL_ERROR "No package can be made, as there is no ${tool}: packaging/install-packages package "
                                "installs it.")
        endif()
    endforeach()
endif()
