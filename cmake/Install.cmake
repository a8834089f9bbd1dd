# What `make install` puts in place and `make package` packs. The lay-out is the build folder's; see apps/tidemark/session/Installation.h.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON) # tests and benchmarks aren't installed, so they needn't be built

set_target_properties(tidemark_program PROPERTIES INSTALL_RPATH "$ORIGIN/../lib/tidemark")
set_target_properties(qsf_host tidemark_module PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS tidemark_program RUNTIME DESTINATION bin)
install(TARGETS qsf_host tidemark_module LIBRARY DESTINATION lib/tidemark)
install(DIRECTORY data/em5 data/test_extra DESTINATION share/tidemark/data)
install(DIRECTORY examples docs DESTINATION share/tidemark)
install(FILES README.md DESTINATION share/tidemark)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Tidemark developers <tidemark@localhost>")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
# Dependencies are read from the libraries that ours are linked to; our own two aren't looked for in other packages.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
include(CPack)
