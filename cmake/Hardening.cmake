# What makes a mistake in a finished program hard to use against its user: for builds with
# optimisation and without sanitizers, for every target, libraries that are built along too.
# Tests: tests/package/hardening_test.sh and tests/windows/hardening_test.sh look into the programs.
if(TORVIK_SANITIZE OR NOT CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
  return()
endif()

if(WIN32)
  # The linker of some systems does this on its own, that of others does not.
  add_link_options(-Wl,--dynamicbase,--high-entropy-va,--nxcompat)
else()
  # Distributions set a lower level on their own, which must go first.
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -fstack-protector-strong
                      -fstack-clash-protection -fPIE)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
    add_compile_options(-fcf-protection=full)
    # Of the two marks that tell the system, the C library's start files of Debian 12 keep back both.
    # They return as all code does; but they hold no marked places to jump to.
    add_link_options(-Wl,-z,shstk)
  endif()
  add_link_options(-pie -Wl,-z,relro,-z,now)
endif()
