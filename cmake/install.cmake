# Header, library and pkg-config file; DESTDIR is honoured.
install(TARGETS tavik LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/tavik.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
configure_file(cmake/tavik.pc.in tavik.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tavik.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
