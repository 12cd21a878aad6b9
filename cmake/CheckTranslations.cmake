# Fails where a text of the programs is missing in a catalogue, or is not translated in it. With
# UPDATE it writes what is new into the catalogue instead, and takes out what is gone.
separate_arguments(FOLDERS)
set(checked "${CATALOGUE}")
if(NOT UPDATE)
    get_filename_component(name "${CATALOGUE}" NAME)
    set(checked "${WORK_DIR}/${name}")
    configure_file("${CATALOGUE}" "${checked}" COPYONLY)
endif()
execute_process(
    COMMAND "${LUPDATE}" -silent -locations none -no-obsolete -I . ${FOLDERS} -ts "${checked}"
    WORKING_DIRECTORY "${SOURCE_DIR}"
    COMMAND_ERROR_IS_FATAL ANY)
if(UPDATE)
    return()
endif()

file(READ "${CATALOGUE}" before)
file(READ "${checked}" after)
if(NOT before STREQUAL after)
    message(FATAL_ERROR "${CATALOGUE} has not the texts of the programs: build update_translations, see ${checked}")
endif()
string(REGEX MATCHALL "<source>[^<]*</source>\n *<translation[^>]*type=\"unfinished\"" unfinished "${after}")
if(unfinished)
    list(JOIN unfinished "\n" texts)
    message(FATAL_ERROR "${CATALOGUE} lacks the translation of:\n${texts}")
endif()
