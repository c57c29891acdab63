# Takes the sentences about elements, attributes and children out of the comments of the public
# headers, as docs/architecture.md describes them, and prints them as tables for sentences.cpp.
# Fails if a comment does not have one of the forms.

BEGIN { class_count = row_count = 0 }

function fail(reason) {
  printf "%s:%d: %s: %s\n", FILENAME, FNR, reason, comment > "/dev/stderr"
  failed = 1
  exit 1
}

function quoted(text) {
  gsub(/[\\"]/, "\\\\&", text)
  return "\"" text "\""
}

# The first word in backticks.
function name_in(text) {
  match(text, /`[^`]+`/)
  return substr(text, RSTART + 1, RLENGTH - 2)
}

# What follows the first ": ", if it has the form of a description.
function description_in(text) {
  sub(/^[^:]*: /, "", text)
  if (text !~ /^[a-z0-9].*\.$/) fail("a description begins with a small letter and ends with a full stop")
  return text
}

function member(   occurrence, text) {
  if (comment !~ /^`[A-Za-z0-9]+`(:|\.) (.*\. )?(Required|Optional|Repeated)\.$/) fail("no form of a row's comment")
  occurrence = comment
  sub(/.* /, "", occurrence)
  sub(/\.$/, "", occurrence)
  text = comment
  sub(/ [A-Za-z]+\.$/, "", text)
  text = text ~ /^`[^`]+`\.$/ ? "" : description_in(text)
  rows[row_count++] = "    {" quoted(name_in(comment)) ", Occurrence::k" occurrence ", " quoted(text) "},"
}

# A class, with the element's comment if it has one; a class without a comment of that form is a base.
function class_begins(   name) {
  name = $2
  sub(/[:;{].*/, "", name)
  name = space "::" name
  names[class_count] = name
  exists[name] = 1
  spaces[class_count] = space
  first[class_count] = row_count
  if (comment ~ /^Element `/) {
    if (comment !~ /^Element `[A-Za-z0-9]+`( of `[A-Za-z0-9]+`)?: /) fail("no form of an element's comment")
    elements[class_count] = name_in(comment)
    if (comment ~ /^Element `[^`]+` of `/) {
      parents[class_count] = comment
      sub(/^Element `[^`]+` of /, "", parents[class_count])
      parents[class_count] = name_in(parents[class_count])
    }
    sentences[class_count] = description_in(comment)
  }
  class_count++
}

{ sub(/\r$/, "") }

/^ *\/\/\/ / || /^ *\/\/\/$/ {
  line = $0
  sub(/^ *\/\/\/ ?/, "", line)
  if (line == "") is_over = 1
  if (!is_over) comment = comment == "" ? line : comment " " line
  is_comment = 1
  next
}

is_comment && comment ~ /^`/ { member() }
is_comment { is_comment = is_over = 0 }

/^namespace / { space = $2 }
/^template </ { next }  # a class follows
/^class [A-Za-z]+;/ { next }
/^class / { class_begins() }
/^class .*: public / || /^ *: public / {
  base = $0
  sub(/.*: public /, "", base)
  sub(/[<{ ].*/, "", base)
  bases[class_count - 1] = base
}
{ comment = "" }

END {
  if (failed) exit 1
  first[class_count] = row_count
  print "constexpr RowSentence kRows[] = {"
  for (i = 0; i < row_count; i++) print rows[i]
  print "};\n\nconstexpr ClassSentence kClasses[] = {"
  for (i = 0; i < class_count; i++) {
    base = bases[i]
    if ((spaces[i] "::" base) in exists) base = spaces[i] "::" base
    else if (("tolva::node::" base) in exists) base = "tolva::node::" base
    printf "    {%s, %s, %s, %s, %s, {kRows + %d, %d}},\n", quoted(names[i]), quoted(base), \
        quoted(elements[i]), quoted(parents[i]), quoted(sentences[i]), first[i], first[i + 1] - first[i]
  }
  print "};"
}
