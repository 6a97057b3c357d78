# Lists the operations of the host interfaces, as the headers declare them: the names that a journal shows and
# that can be refused.
#   cmake -DOUTPUT=FILE -DHEADERS=A|B|... -P OperationNames.cmake
#
# Left out are: what the manager implements itself; the operation that gives the interpreter, which every
# command asks for several times; and the one that serves the "app" words themselves.
set(left_out znIBrowserInfo::GetVersion znIBrowserApplication::GetTclInterp
    znIBrowserApplication::EvalAppCommand)

string(REPLACE "|" ";" headers "${HEADERS}")
set(names "")
foreach(header IN LISTS headers)
    file(READ "${header}" text)
    string(REGEX REPLACE "//[^\n]*" "" text "${text}")
    string(REPLACE ";" " " text "${text}")
    string(REGEX MATCHALL "(\n|^)class [A-Za-z]+|virtual [^(]*[ *&~][A-Za-z0-9]+\\(" found "${text}")
    set(class "")
    foreach(match IN LISTS found)
        if(match MATCHES "class ([A-Za-z]+)$")
            set(class "${CMAKE_MATCH_1}")
        elseif(class MATCHES "^znI" AND NOT match MATCHES "~" AND match MATCHES "([A-Za-z0-9]+)\\($")
            list(APPEND names "${class}::${CMAKE_MATCH_1}")
        endif()
    endforeach()
endforeach()
list(REMOVE_DUPLICATES names)
list(REMOVE_ITEM names ${left_out})
list(SORT names)
list(LENGTH names count)
if(count LESS 300)
    message(FATAL_ERROR "only ${count} operations are found in the headers of the host interfaces")
endif()

list(JOIN names "\",\n    \"" rows)
file(WRITE "${OUTPUT}" "// The operations of the host interfaces, sorted; made from their headers.
#ifndef ZN_HOST_OPERATION_NAMES_H
#define ZN_HOST_OPERATION_NAMES_H

#include <string_view>

namespace znhost {

inline constexpr std::string_view operationNames[] = {
    \"${rows}\",
};

} // namespace znhost

#endif
")
