# Where a build's updates, its home page and its donations page are. Empty: it has none, and says so. They are settled
# here and stand in no profile, since profiles travel with collections and would choose a program for us to run.

set(KIVU_UPDATE_BASE "" CACHE STRING "https address below which Update.exe and Kivu/Kivu.exe lie")
set(KIVU_UPDATER_SHA256 "" CACHE STRING "SHA-256 of the updater that is run, in hexadecimal digits")
set(KIVU_HOME_PAGE "" CACHE STRING "Address of the program's home page")
set(KIVU_DONATE_URL "" CACHE STRING "Address of the donations page")

function(kivu_check_address variable schemes)
  if(NOT "${${variable}}" STREQUAL "" AND NOT "${${variable}}" MATCHES "^(${schemes})://[^] \"\t\r\n/?#]+[^] \"\t\r\n]*$")
    message(FATAL_ERROR "${variable} must begin with ${schemes}:// and hold no blank and no quote: ${${variable}}")
  endif()
endfunction()

kivu_check_address(KIVU_UPDATE_BASE "https")
kivu_check_address(KIVU_HOME_PAGE "https|http")
kivu_check_address(KIVU_DONATE_URL "https")

string(LENGTH "${KIVU_UPDATER_SHA256}" length)
if(NOT "${KIVU_UPDATE_BASE}" STREQUAL "" AND NOT (length EQUAL 64 AND KIVU_UPDATER_SHA256 MATCHES "^[0-9a-fA-F]+$"))
  message(FATAL_ERROR "KIVU_UPDATE_BASE needs KIVU_UPDATER_SHA256, the SHA-256 of its Update.exe")
endif()
