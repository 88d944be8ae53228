# Cross-compiles for 32-bit ARM with hard float.
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(PLATFORM_ARCHITECTURE armhf)
set(PLATFORM_TRIPLET arm-linux-gnueabihf)
set(PLATFORM_EMULATOR qemu-arm-static)
include("${CMAKE_CURRENT_LIST_DIR}/sysroot.cmake")
