# Shows the plain comments of a public header to Doxygen: a block belongs to the declaration under
# it, one at the end of a line to what stands before it, the one that opens the file to the class,
# which is named like the file. A heading such as
#
#     // ---- Document -----------------------------------
#
# begins a group, which the comment that goes on under it describes. Of names for numbers, several to
# one comment, each gets that comment.
#
#   awk -f commenti.awk clsPDFCreator.h

NR == 1 {
    class = FILENAME
    gsub(/^.*\/|\.h$|_/, "", class)
    print "/// @class " class
}

/^ *\/\/ ---- / {
    closeGroup()
    sub(/\/\/ ---- /, "/// @name ")
    sub(/ -+$/, "")
    print
    heading = 1
    next
}

/^private:/ { closeGroup() }

/^$/ && heading {
    print "    ///@{"
    heading = 0
    open = 1
}

class ~ /Options$/ && /^    \/\/ / { words = words substr($0, 7) }

class ~ /Options$/ && / = / {
    gsub(/[A-Za-z0-9_]+ = -?[0-9]+[,;]/, "& /**<" words " */")
}

/^$/ { words = "" }

class ~ /Options$/ && words { print; next }

{
    if (!sub(/^ *\/\//, "&/")) sub(/[;,] +\/\//, "&/<")
    print
}

function closeGroup()
{
    if (open) print "    ///@}"
    open = 0
}
