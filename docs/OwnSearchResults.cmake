# Leaves in the search of the reference what belongs to this library. Doxygen puts every name of Qt's
# tag files into it, some thousands for each letter, in front of the library's own.
#
# usage: cmake -D HTML=FOLDER -P OwnSearchResults.cmake
file(GLOB indexes "${HTML}/search/*_*.js")
foreach(index IN LISTS indexes)
    file(READ "${index}" content)
    # An entry is a line: ['id',['Name',[link],[link]]], with one link for each thing of that name.
    string(REGEX REPLACE ",\\['https://doc\\.qt\\.io/[^']*',[01],'[^']*'\\]" "" content "${content}")
    string(REGEX REPLACE "  \\['[^']*',\\['[^']*'\\]\\],?\n" "" content "${content}")
    file(WRITE "${index}" "${content}")
endforeach()
