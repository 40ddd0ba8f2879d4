# What makes a fault that foreign bytes have found harder to use: guarded stacks, checked copies,
# addresses that differ at each start, tables that can't be written, jumps only to where jumps lead.

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(zepril_hardening INTERFACE)
target_compile_options(zepril_hardening INTERFACE -fstack-protector-strong)
# Checked copies need an optimiser.
target_compile_options(
  zepril_hardening INTERFACE "$<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
check_cxx_compiler_flag(-fcf-protection=full ZEPRIL_HAS_CF_PROTECTION)
if(ZEPRIL_HAS_CF_PROTECTION)
  target_compile_options(zepril_hardening INTERFACE -fcf-protection=full)
endif()
target_link_options(zepril_hardening INTERFACE -Wl,-z,relro -Wl,-z,now)
