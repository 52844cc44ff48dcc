# Writes build_id.h with the commit that is built and its date, only where it has changed.
#   cmake -DSOURCE=… -DTARGET=…/build_id.h -P build_id.cmake
execute_process(COMMAND git -C ${SOURCE} log -1 --format=%h\ %cs OUTPUT_VARIABLE id ERROR_QUIET
                OUTPUT_STRIP_TRAILING_WHITESPACE)
file(CONFIGURE OUTPUT ${TARGET} CONTENT "#pragma once\n\n#define ZARIM_BUILD_ID \"${id}\"\n")
