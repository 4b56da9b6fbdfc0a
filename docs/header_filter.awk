# What Doxygen reads in place of a public header: the comment on top becomes the text of the group that the file's functions
# belong to. Titles and order of the groups stand in reference.dox. A status is shown with its value and its vokmStatusText.
FNR == 1 {
    group = FILENAME; sub(/.*\//, "", group); sub(/\.h$/, "", group)
    while ((getline line < FILENAME) > 0)
        if (split(line, word, "\"") == 3 && sub(/:.*/, "", word[1]) && sub(/.*case /, "", word[1])) meaning[word[1]] = word[2]
}
/^\/\* / && !found { found = inside = 1; print "/** \\addtogroup " group "\n"; sub(/^\/\*/, "  ") }
inside {
    sub(/^   /, "")
    inside = !sub(/ \*\/$/, "\n\n@{ */")
    print
    next
}
$1 in meaning && /^ *vokStatus[A-Za-z]+ = / { $0 = $0 " /**< " ($3 + 0) ": " meaning[$1] " */" }
{ sub(/^\/\*/, "/**"); sub(/; \/\* /, "; /**< "); print }
END { print "/** @} */" }
