# No business of TavrinLib.
set(HOST_INSTALL_INCLUDED ON)
