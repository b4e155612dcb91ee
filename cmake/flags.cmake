# Flags of our own code. Private to our targets: those who link the library do not get them.
add_library(vqk_flags INTERFACE)
target_compile_features(vqk_flags INTERFACE cxx_std_20)
set(release_only $<NOT:$<CONFIG:Debug>>)
set(hardened $<AND:$<BOOL:${VQK_HARDENING}>,${release_only}>)

# For our own builds of what takes longer to compile than to run: tests and tools.
macro(vqk_compile_fast)
  if(CMAKE_COMPILER_IS_GNUCXX AND VQK_WERROR)
    string(REGEX REPLACE "-O[123]" "-Og" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")
    string(REGEX REPLACE "-O[123]" "-Og" CMAKE_CXX_FLAGS_DEBUG "${CMAKE_CXX_FLAGS_DEBUG}")
  endif()
endmacro()

if(MSVC)
  target_compile_options(
    vqk_flags INTERFACE /W4 /utf-8 /permissive- /Zc:__cplusplus $<$<BOOL:${VQK_WERROR}>:/WX>
                        $<${hardened}:/guard:cf>)
  target_link_options(vqk_flags INTERFACE $<${hardened}:/guard:cf> $<${hardened}:/CETCOMPAT> /Brepro)
  return()
endif()

# Without contraction every compiler and platform computes the same colors.
target_compile_options(
  vqk_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -ffp-contract=off
                      $<$<BOOL:${VQK_WERROR}>:-Werror>)
# The same bytes wherever it is built.
target_compile_options(vqk_flags INTERFACE $<${release_only}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)
if(VQK_SANITIZE)
  target_compile_options(vqk_flags INTERFACE -fsanitize=${VQK_SANITIZE} -fno-omit-frame-pointer
                                             -fno-sanitize-recover=all)
  target_link_options(vqk_flags INTERFACE -fsanitize=${VQK_SANITIZE})
elseif(WIN32)
  # GCC has no Control Flow Guard. Its stack protector and FORTIFY_SOURCE need a library that programs
  # linking the static library would need, too.
  target_link_options(
    vqk_flags INTERFACE -Wl,--no-insert-timestamp
                        $<${hardened}:LINKER:--dynamicbase,--nxcompat,--high-entropy-va>)
else()
  target_compile_options(
    vqk_flags INTERFACE
    $<${hardened}:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64|i.86")
    target_compile_options(vqk_flags INTERFACE $<${hardened}:-fcf-protection>)
  endif()
  target_link_options(vqk_flags INTERFACE $<${hardened}:LINKER:-z,relro,-z,now>)
endif()
