# Compiler options that all targets share.
add_library(rheo_options INTERFACE)
target_include_directories(rheo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(rheo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # g++ 12 sees overlapping copies in "text" + std::string where there are none.
  -Wno-restrict
  # Results are reproducible bit for bit: no operation may be fused or reordered.
  -ffp-contract=off
  # Square roots become one instruction; errno is not looked at anywhere. Values do not change.
  -fno-math-errno
  # Checks report source paths from the root of the tree.
  -fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=
)
target_link_options(rheo_options INTERFACE -Wl,--as-needed)
if(RHEOMARK_WERROR)
  target_compile_options(rheo_options INTERFACE -Werror)
endif()
if(RHEOMARK_SANITIZE)
  target_compile_options(rheo_options INTERFACE -fsanitize=${RHEOMARK_SANITIZE}
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(rheo_options INTERFACE -fsanitize=${RHEOMARK_SANITIZE})
endif()
