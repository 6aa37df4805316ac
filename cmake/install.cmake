# Header, library, and what a page program is built with; DESTDIR is honoured, and the installed
# tree can be moved.
include(CMakePackageConfigHelpers)

install(TARGETS tavik tavik_crypt tavik_nocrypt EXPORT tavik
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/tavik.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# find_package(tavik): the targets are all there is to configure.
set(cmake_folder ${CMAKE_INSTALL_LIBDIR}/cmake/tavik)
install(EXPORT tavik NAMESPACE tavik:: FILE tavik-config.cmake DESTINATION ${cmake_folder})
write_basic_package_version_file(tavik-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tavik-config-version.cmake DESTINATION ${cmake_folder})

# pkg-config tavik and pkg-config tavik-nocrypt link a page as the targets of these names do.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
  BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE pc_prefix)
function(install_pc_file pc_name pc_about target)
  get_target_property(items ${target} INTERFACE_LINK_LIBRARIES)
  list(REMOVE_ITEM items tavik)
  list(JOIN items " " pc_options)
  configure_file(cmake/tavik.pc.in ${pc_name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${pc_name}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
install_pc_file(tavik "with libcrypt" tavik_crypt)
install_pc_file(tavik-nocrypt "for pages that hash no password" tavik_nocrypt)
