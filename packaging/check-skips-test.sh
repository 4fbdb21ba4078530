#!/bin/sh
# Holds check-skips.sh against results as ctest and GoogleTest write them.
set -eu
check=$(cd "$(dirname "$0")" && pwd)/check-skips.sh
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
failed=0

# begin: results of a run in which one test passed.
begin() {
  rm -rf "${dir:?}"/*
  mkdir "$dir/esiti"
  ctest 'A.Passes' 'status="run"' '<system-out>[ RUN      ] A.Passes</system-out>'
}

# ctest NAME STATUS CONTENT: a test as ctest tells of it.
ctest() {
  printf '\t<testcase name="%s" classname="%s" time="0.1" %s>\n\t\t%s\n\t</testcase>\n' "$1" "$1" "$2" "$3" \
    >>"$dir/esiti.xml"
}

# skips NAME REASON: a test of GoogleTest that was skipped.
skips() {
  ctest "$1" 'status="notrun"' "<skipped message=\"SKIP_REGULAR_EXPRESSION_MATCHED\"/>
		<system-out>[ RUN      ] $1
../a_test.cpp:7: Skipped
$2
[  SKIPPED ] $1 (0 ms)
</system-out>"
}

# googletest SUITE NAME CONTENT: a test as GoogleTest tells of it.
googletest() {
  printf '    <testcase name="%s" file="../a_test.cpp" line="1" %s classname="%s">\n%s\n    </testcase>\n' "$2" "$4" "$1" \
    "$3" >>"$dir/esiti/folder.xml"
}

# expect NAME STATUS TEXT
expect() {
  status=0
  said=$("$check" "$dir" 2>&1) || status=$?
  if [ "$status" = "$2" ] && [ "$said" = "$3" ]; then
    echo "well: $1"
  else
    printf 'FAILED: %s\n--- expected, status %s\n%s\n--- said, status %s\n%s\n' "$1" "$2" "$3" "$status" "$said"
    failed=1
  fi
}

not_listed="SKIPPED, and not listed in packaging/allowed-skips.txt:"
memory="a program under the address sanitizer has no limit of memory"

rm -rf "${dir:?}"/*
expect "no results" 2 "check-skips.sh: no results of tests in $dir/esiti.xml"
echo '<testsuite tests="0"></testsuite>' >"$dir/esiti.xml"
expect "results of no test" 2 "check-skips.sh: no results of tests in $dir/esiti.xml"

begin
expect "nothing skipped" 0 "No test was skipped."

begin
skips 'CatalogoOstile.TooLittleMemoryIsRunTimeError7' "$memory"
expect "listed" 0 "skipped, as listed: CatalogoOstile.TooLittleMemoryIsRunTimeError7: $memory"
skips 'A.New' "$memory"
expect "listed, and one that is not" 1 "skipped, as listed: CatalogoOstile.TooLittleMemoryIsRunTimeError7: $memory
$not_listed A.New: $memory"

begin
skips 'CatalogoOstile.TooLittleMemoryIsRunTimeError7' "it&apos;s &lt;late&gt; &amp; dark"
expect "listed with another reason" 1 \
  "$not_listed CatalogoOstile.TooLittleMemoryIsRunTimeError7: it's <late> & dark"

begin
skips 'AttributiFile.Whatever' 'no access lists here'
expect "listed by a pattern" 0 "skipped, as listed: AttributiFile.Whatever: no access lists here"

begin
skips 'All/A.New/row  # GetParam() = row' 'no time'
ctest 'carta' 'status="notrun"' '<skipped message="SKIP_RETURN_CODE=77"/>
		<system-out>skipped: there is no cupsd
</system-out>'
ctest 'A.Off' 'status="disabled"' '<skipped/>'
ctest 'A.Silent' 'status="notrun"' '<skipped message="SKIP_RETURN_CODE=77"/>'
expect "a row, a script, a disabled test, one without a reason" 1 "$not_listed All/A.New/row: no time
$not_listed carta: there is no cupsd
$not_listed A.Off: 
$not_listed A.Silent: SKIP_RETURN_CODE=77"

begin
googletest A Passes '' 'status="run" result="completed"'
expect "one process, nothing skipped" 0 "No test was skipped."
googletest A New '      <skipped message="../a_test.cpp:7&#x0A;no &quot;time&quot;"><![CDATA[../a_test.cpp:7
no "time"]]></skipped>' 'status="run" result="skipped"'
googletest A DISABLED_Off '' 'status="notrun" result="suppressed"'
expect "one process" 1 "$not_listed A.New: no \"time\"
$not_listed A.DISABLED_Off: disabled"
exit $failed
