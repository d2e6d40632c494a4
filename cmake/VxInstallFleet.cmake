# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# What is installed besides programs and libraries: the page, the configurations for what a site runs, and
# the guides. They lie beside each other as in the source tree, so the guides' links and commands hold there too.

set(VX_SITE_FOLDER "${VX_DATA_FOLDER}")

# What browsers load. The list of packages that the bundle is made from stays with the sources.
install(DIRECTORY web/ DESTINATION "${VX_SITE_FOLDER}/web" COMPONENT web
    PATTERN package.json EXCLUDE
    PATTERN package-lock.json EXCLUDE
    PATTERN node_modules EXCLUDE)
install(DIRECTORY docs/ DESTINATION "${VX_SITE_FOLDER}/docs" COMPONENT documentation)
if(WIN32)
    # Brokers and Prometheus may well run elsewhere, but the service manager there is not systemd.
    install(DIRECTORY deploy/ DESTINATION "${VX_SITE_FOLDER}/deploy" COMPONENT documentation
        PATTERN systemd EXCLUDE)
    return()
endif()
install(DIRECTORY deploy/ DESTINATION "${VX_SITE_FOLDER}/deploy" COMPONENT documentation)
if(TARGET vxprintagent)
    # Where systemd looks for them, if the prefix is /usr or, for the unit, /usr/local.
    install(FILES deploy/systemd/vxprintagent.service DESTINATION lib/systemd/system COMPONENT agent)
    install(FILES deploy/systemd/vxprintagent.sysusers.conf DESTINATION lib/sysusers.d
        COMPONENT agent RENAME vxprintagent.conf)
endif()
