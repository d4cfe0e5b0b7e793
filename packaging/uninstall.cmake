# SPDX-License-Identifier: MIT
# Removes the files that "list" names, and the folders of the program's own that are empty then. Its first line is the
# data folder that they were installed in.
if(NOT EXISTS "${list}")
  message(FATAL_ERROR "Nothing was installed from this build.")
endif()
file(STRINGS "${list}" files ENCODING UTF-8)
list(POP_FRONT files data)
foreach(file IN LISTS files)
  if(EXISTS "${file}" OR IS_SYMLINK "${file}")
    message(STATUS "Removing ${file}")
    file(REMOVE "${file}")
  endif()
endforeach()
# The innermost first.
foreach(folder ordelin/help/pictures ordelin/help ordelin/ordmod ordelin/samples ordelin/sounds ordelin doc/ordelin)
  file(GLOB rest "${data}/${folder}/*")
  if(IS_DIRECTORY "${data}/${folder}" AND NOT rest)
    file(REMOVE_RECURSE "${data}/${folder}")
  endif()
endforeach()
include("${CMAKE_CURRENT_LIST_DIR}/update_databases.cmake")
file(REMOVE "${list}")
