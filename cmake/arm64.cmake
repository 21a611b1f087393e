# Debian's cross compiler for arm64 and what it needs to find; what is built runs through qemu while building and testing.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE arm64)
