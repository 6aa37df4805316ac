# Header, library and pkg-config file; DESTDIR is honoured.
install(TARGETS tavik LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/tavik.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# The pkg-config file finds its prefix from its own place, so that the tree can be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
  BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE tavik_pc_prefix)
configure_file(cmake/tavik.pc.in tavik.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tavik.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
