# What Doxygen reads in place of a page: links to public headers become links to their groups.
s#\]\(\.\./include/(vokm-families/)?([a-z0-9_]+)(\.h)?\)#](@ref \2)#g
