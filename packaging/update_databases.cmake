# SPDX-License-Identifier: MIT
# Tells the desktop which types of files, programs and icons there are in the data folder "data". What a desktop doesn't
# have isn't needed there.
foreach(command
    "update-mime-database;${data}/mime"
    "update-desktop-database;-q;${data}/applications")
  list(GET command 0 tool)
  list(GET command -1 folder)
  find_program(found NAMES ${tool} NO_CACHE)
  if(found AND IS_DIRECTORY "${folder}")
    execute_process(COMMAND ${command} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
      message(WARNING "${tool} failed: ${result}")
    endif()
  endif()
  unset(found)
endforeach()

# Icons are found without a cache, but not beside one that is older.
find_program(found NAMES gtk-update-icon-cache NO_CACHE)
if(found AND EXISTS "${data}/icons/hicolor/icon-theme.cache")
  execute_process(COMMAND gtk-update-icon-cache -q -t -f "${data}/icons/hicolor")
endif()
