# What distributions build their programs with, so that damaged data ends the program rather than
# being carried out.
if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
    return()
endif()

add_compile_options(-fstack-protector-strong)
add_link_options(-fstack-protector-strong)
add_compile_definitions(_FORTIFY_SOURCE=2 _GLIBCXX_ASSERTIONS)

include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(WIN32)
    add_link_options(LINKER:--dynamicbase,--nxcompat,--high-entropy-va)
else()
    add_link_options(LINKER:-z,relro,-z,now)
endif()
