# Divides sources into groups that can be compiled as one: prints "GROUP;FILE" for each FILE given.
#
# Two sources go into one group only if neither meets names of the other that it did not know alone:
#   - a type, a constant or a macro that one declares for itself, the other does not use at all;
#   - a function that one declares for itself, the other does not declare; and where a header
#     declares one of that name too, the other does not use it;
#   - other names for the same thing may stand in both.
# Sources that speak to Windows keep to themselves, since its headers define macros in small letters.
# Headers are given with the sources; they are read for their names alone.

BEGIN { most_lines = 1600 }

FNR == 1 {
  file = FILENAME
  is_header = file ~ /\.h$/
  nameless = 0
  in_text = 0
  if (!is_header) {
    files[++file_count] = file
    kind[file] = file ~ /win32/ ? "windows" : "any"
  }
}

{
  line = $0
  if (!is_header) ++lines[file]
  if (line ~ /^#include/) {
    if (line ~ /windows\.h|[\/_]win32|tests\/windows\//) kind[file] = "windows"
    next
  }
  # A text over several lines holds no declarations.
  if (in_text) {
    if (line ~ /\)[a-zA-Z_]*"/) in_text = 0
    next
  }
  if (line ~ /R"[a-zA-Z_]*\(/ && line !~ /\)[a-zA-Z_]*"/) in_text = 1
  gsub(/"([^"\\]|\\.)*"/, "\"\"", line)
  sub(/\/\/.*/, "", line)
}

/^namespace \{/ { nameless = 1; next }
/^\}  \/\/ namespace$/ { nameless = 0; next }

{
  rest = line
  while (match(rest, /[A-Za-z_][A-Za-z_0-9]*/)) {
    word = substr(rest, RSTART, RLENGTH)
    if (is_header) used_in_headers[word] = 1
    else uses[file, word] = 1
    rest = substr(rest, RSTART + RLENGTH)
  }
}

# What stands at the line's begin is declared in a namespace.
line ~ /^#define / {
  sub(/^#define +/, "", line)
  declare(first_word(line), "")
  next
}
line ~ /^[A-Za-z_\[]/ && (is_header || nameless || line ~ /^(static|using|namespace [a-z_]+ =) /) {
  declare_line(line)
}

function first_word(text) {
  match(text, /^[A-Za-z_0-9]+/)
  return substr(text, 1, RLENGTH)
}

function declare_line(text,    whole) {
  sub(/^\[\[[a-z_]+\]\] */, "", text)
  sub(/^template <.*> */, "", text)
  whole = text
  if (text ~ /^(TEST|TYPED_TEST|INSTANTIATE|static_assert|template|using namespace |using [A-Za-z_:]+;|namespace [a-z_:]+ \{)/) return
  if (sub(/^MATCHER[_P0-9]*\(/, "", text)) {
    declare(first_word(text), "")
  } else if (sub(/^(namespace|using) /, "", text)) {
    declare(first_word(text), whole)
  } else if (sub(/^(enum class|enum|struct|class|union) /, "", text)) {
    declare(first_word(text), "")
  } else if (match(text, /[A-Za-z_][A-Za-z_0-9]*(\(|\[| =|\{|;)/)) {
    text = substr(text, RSTART, RLENGTH)
    declare(first_word(text), text ~ /\($/ ? "()" : "")
  }
}

# `meaning` is "()" for a function, the whole line for another name of something.
function declare(name, meaning) {
  if (is_header) {
    in_header[name] = meaning
  } else if (!((file, name) in known)) {
    known[file, name] = meaning
    names[file, ++name_count[file]] = name
  }
}

function disturbs(one, other,    i, name, meaning) {
  for (i = 1; i <= name_count[one]; ++i) {
    name = names[one, i]
    if (!((other, name) in uses)) continue
    meaning = known[one, name]
    if (meaning == "") return 1
    if ((other, name) in known) {
      if (meaning == "()" || known[other, name] != meaning) return 1
    } else if (name in in_header && (meaning == "()" || in_header[name] != meaning)) {
      return 1
    }
  }
  return 0
}

function disturbs_headers(source,    i, name) {
  for (i = 1; i <= name_count[source]; ++i) {
    name = names[source, i]
    if (known[source, name] == "" && name in used_in_headers) return 1
  }
  return 0
}

function fits(group, source,    i) {
  if (group_kind[group] != kind[source]) return 0
  if (group_lines[group] + lines[source] > most_lines) return 0
  for (i = 1; i <= members[group]; ++i) {
    if (disturbs(source, member[group, i]) || disturbs(member[group, i], source)) return 0
  }
  return 1
}

END {
  for (f = 1; f <= file_count; ++f) {
    source = files[f]
    if (disturbs_headers(source)) {
      print "alone" f ";" source
      continue
    }
    for (group = 1; group <= groups && !fits(group, source); ++group) {}
    if (group > groups) {
      groups = group
      group_kind[group] = kind[source]
    }
    member[group, ++members[group]] = source
    group_lines[group] += lines[source]
    print "group" group ";" source
  }
}
