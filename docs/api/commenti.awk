# Shows the plain comments of a public header to Doxygen: a block belongs to the declaration under
# it, one at the end of a line to what stands before it, the one that opens the file to the class. A
# heading such as
#
#     // ---- Document -----------------------------------
#
# begins a group, which the comment that goes on under it describes.
#
#   awk -f commenti.awk clsPDFCreator.h

NR == 1 { print "/// @class clsPDFCreator" }

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

{
    if (!sub(/^ *\/\//, "&/")) sub(/[;,] +\/\//, "&/<")
    print
}

function closeGroup()
{
    if (open) print "    ///@}"
    open = 0
}
