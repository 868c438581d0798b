include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

# kelp_quill_inp_install_library(LIBRARY DESCRIPTION [DEPENDENCY...])
#
# Installs a library as a separate package: the library, its headers, and the files for find_package
# and pkg-config. The dependencies are packages too, each with a library of the same name.
function(kelp_quill_inp_install_library library description)
  set(dependencies ${ARGN})
  install(TARGETS ${library}
    EXPORT ${library}Targets
    RUNTIME COMPONENT runtime
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development
    FILE_SET HEADERS COMPONENT development
  )
  kelp_quill_inp_install_run_path(${library} LIBDIR runtime ${dependencies})
  kelp_quill_inp_install_cmake_package(${library} ${dependencies})
  kelp_quill_inp_install_pkg_config_file(${library} "${description}" ${dependencies})
endfunction()

function(kelp_quill_inp_install_cmake_package library)
  # Packages in the same folder are found even if the caller does not name that folder.
  set(find_dependencies "")
  foreach(dependency IN LISTS ARGN)
    string(APPEND find_dependencies
      "find_dependency(${dependency} CONFIG HINTS \"\${CMAKE_CURRENT_LIST_DIR}/..\")\n")
  endforeach()

  set(folder "${CMAKE_INSTALL_LIBDIR}/cmake/${library}")
  set(generated "${PROJECT_BINARY_DIR}/package/${library}")
  configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/package/config.cmake.in"
    "${generated}Config.cmake"
    INSTALL_DESTINATION "${folder}"
    NO_SET_AND_CHECK_MACRO
  )
  write_basic_package_version_file("${generated}ConfigVersion.cmake"
    COMPATIBILITY ${KELP_QUILL_INP_COMPATIBILITY})
  install(FILES "${generated}Config.cmake" "${generated}ConfigVersion.cmake"
    DESTINATION "${folder}" COMPONENT development)
  install(EXPORT ${library}Targets NAMESPACE kelp::
    DESTINATION "${folder}" COMPONENT development)
endfunction()

function(kelp_quill_inp_install_pkg_config_file library description)
  set(folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
  # A prefix relative to the file itself stays right when the installation is moved. That is not
  # possible if the library folder is absolute. And pkg-config leaves out the system's own folders,
  # which the compiler searches anyway, only if they are written as plain absolute paths.
  if(IS_ABSOLUTE "${folder}" OR CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(prefix "${CMAKE_INSTALL_PREFIX}")
  else()
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
      BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${folder}" OUTPUT_VARIABLE way_up)
    set(prefix "\${pcfiledir}/${way_up}")
  endif()
  cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_LIBDIR
    BASE_DIRECTORY "\${prefix}" OUTPUT_VARIABLE library_folder)
  cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_INCLUDEDIR
    BASE_DIRECTORY "\${prefix}" OUTPUT_VARIABLE include_folder)

  list(JOIN ARGN " " requires)
  get_target_property(definitions ${library} INTERFACE_COMPILE_DEFINITIONS)
  set(flags "")
  if(definitions)
    list(TRANSFORM definitions PREPEND " -D")
    list(JOIN definitions "" flags)
  endif()
  get_target_property(link_options ${library} INTERFACE_LINK_OPTIONS)
  set(link_flags "")
  if(link_options)
    # The libraries that this one needs are in "Requires".
    list(FILTER link_options EXCLUDE REGEX "TARGET_FILE")
    list(JOIN link_options " " link_flags)
    string(REPLACE "LINKER:" "-Wl," link_flags " ${link_flags}")
  endif()
  set(generated "${PROJECT_BINARY_DIR}/package/${library}.pc")
  configure_file("${PROJECT_SOURCE_DIR}/cmake/package/library.pc.in" "${generated}" @ONLY)
  install(FILES "${generated}" DESTINATION "${folder}" COMPONENT development)
endfunction()
