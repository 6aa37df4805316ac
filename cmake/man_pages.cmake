# The manual pages, made from the public header: MANPATH=build/release/man man tavik
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(public_header ${PROJECT_SOURCE_DIR}/include/tavik.h)
set(man_scripts ${PROJECT_SOURCE_DIR}/cmake/man)
set(man_folder ${PROJECT_BINARY_DIR}/man/man3)
add_custom_command(
  OUTPUT ${man_folder}/tavik.3
  COMMAND ${Python3_EXECUTABLE} -B ${man_scripts}/pages.py ${public_header} ${PROJECT_VERSION} ${man_folder}
  DEPENDS ${public_header} ${man_scripts}/pages.py ${man_scripts}/header.py
  COMMENT "Manual pages")
add_custom_target(man_pages ALL DEPENDS ${man_folder}/tavik.3)
install(DIRECTORY ${man_folder} DESTINATION ${CMAKE_INSTALL_MANDIR})
