# SPDX-License-Identifier: MIT
if(KESTREL_SANITIZE)
  add_compile_options(-fsanitize=${KESTREL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KESTREL_SANITIZE})
endif()
if(KESTREL_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic -O0)  # atomic: some code runs in several threads
  add_link_options(--coverage)
endif()
