# What Doxygen reads in place of a page: links to public headers become links to their groups, and those to other files outside
# of this folder, which have no page, become their text.
s#\]\(\.\./include/(vokm-families/)?([a-z0-9_]+)(\.h)?\)#](@ref \2)#g
s#\[([^]]*)\]\(\.\./[^)]*\)#\1#g
