# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: LGPL-3.0-or-later

# cmake -DLUPDATE=<program> -DSOURCES=<root of the repository> -DCATALOGUES=<folder> -P update.cmake
# Brings the .ts files of a folder up to date with the texts of the sources; fails where lupdate complains of one.
# Without line numbers, so that a .ts file changes only with its texts; with the headers of platform/, where its classes
# are declared.
set(flags -silent -no-obsolete -locations none -I .)

function(update)
    execute_process(COMMAND ${LUPDATE} ${flags} ${ARGV} WORKING_DIRECTORY ${SOURCES}
        OUTPUT_QUIET ERROR_VARIABLE complaints COMMAND_ERROR_IS_FATAL ANY)
    if(complaints)
        message(SEND_ERROR "${complaints}")
    endif()
endfunction()

set(library ${CATALOGUES}/vnawidgets)
set(panel ${CATALOGUES}/vnapanel)
update(platform src -ts ${library}_en.ts ${library}_de.ts ${library}_zh_CN.ts)
update(panel -ts ${panel}_de.ts ${panel}_zh_CN.ts)
# The panel's texts are English; only numbers of things need a catalogue.
update(-pluralonly panel -ts ${panel}_en.ts)
