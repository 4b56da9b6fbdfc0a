# What Doxygen reads in place of a public header: the comment on top becomes the text of the group that the file's functions
# belong to. Titles and order of the groups stand in reference.dox.
FNR == 1 { group = FILENAME; sub(/.*\//, "", group); sub(/\.h$/, "", group) }
/^\/\* / && !found { found = inside = 1; print "/** \\addtogroup " group "\n"; sub(/^\/\*/, "  ") }
inside {
    sub(/^   /, "")
    inside = !sub(/ \*\/$/, "\n\n@{ */")
    print
    next
}
{ sub(/^\/\*/, "/**"); sub(/; \/\* /, "; /**< "); print }
END { print "/** @} */" }
