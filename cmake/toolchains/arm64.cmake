# Cross-compiles for 64-bit ARM.
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(PLATFORM_ARCHITECTURE arm64)
set(PLATFORM_TRIPLET aarch64-linux-gnu)
set(PLATFORM_EMULATOR qemu-aarch64-static)
include("${CMAKE_CURRENT_LIST_DIR}/sysroot.cmake")
