# Finds what the Python module needs: pybind11, and an interpreter that has NumPy, whose headers are
# installed. Sets ZORVANE_PYTHON_FOUND. Of several interpreters, -DPython3_EXECUTABLE=... takes one.
function(zorvane_has_numpy result candidate)
    execute_process(COMMAND "${candidate}" -c "import numpy"
        RESULT_VARIABLE status OUTPUT_QUIET ERROR_QUIET)
    if(NOT status EQUAL 0)
        set(${result} FALSE PARENT_SCOPE)
    endif()
endfunction()

find_program(Python3_EXECUTABLE python3 VALIDATOR zorvane_has_numpy)
set(ZORVANE_PYTHON_FOUND FALSE)
if(Python3_EXECUTABLE)
    find_package(Python3 3.9 QUIET COMPONENTS Interpreter Development.Module)
endif()
if(Python3_FOUND)
    find_package(pybind11 2.10 CONFIG QUIET)
    set(ZORVANE_PYTHON_FOUND ${pybind11_FOUND})
endif()
