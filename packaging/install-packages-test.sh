#!/bin/sh
# Runs install-packages.sh, run.sh and test.sh on machines that are made up: what is installed, who runs them, and
# whether there is sudo is said by small programs in a folder that is all of PATH.
set -eu
cd "$(dirname "$0")/.."
root=$PWD
bin=$(mktemp -d)
trap 'rm -rf "$bin"' EXIT
failed=0

fake() {
  rm -f "$bin/$1"
  printf '#!/bin/sh\n%s\n' "$2" >"$bin/$1"
  chmod +x "$bin/$1"
}

# machine UID INSTALLED...: the real tools that the scripts use, and fakes that tell what they were called with.
machine() {
  rm -f "$bin"/*
  for tool in sh sed dirname env; do ln -s "$(command -v $tool)" "$bin/$tool"; done
  fake id "echo $1"
  shift
  # shellcheck disable=SC2016 # expanded when it runs
  fake dpkg-query "for name; do :; done; case ' $* ' in *\" \$name \"*) printf installed ;; *) exit 1 ;; esac"
  fake apt-get 'echo "apt-get $*"'
}

# expect NAME STATUS TEXT COMMAND...: what it says, standard error included.
expect() {
  name=$1
  expected=$2
  text=$3
  shift 3
  status=0
  said=$(PATH=$bin "$@" 2>&1) || status=$?
  if [ "$status" = "$expected" ] && [ "$said" = "$text" ]; then
    echo "well: $name"
  else
    printf 'FAILED: %s\n--- expected, status %s\n%s\n--- said, status %s\n%s\n' "$name" "$expected" "$text" "$status" "$said"
    failed=1
  fi
}

# names LIST...: the packages of the lists, in one line.
names() {
  for list in "$@"; do sed 's/#.*//' "packaging/$list"; done | tr -s ' \n' ' ' | sed 's/^ //; s/ $//'
}

install() {
  expect "$@" packaging/install-packages.sh run-packages.txt test-packages.txt
}

to_run=$(names run-packages.txt)
to_test=$(names test-packages.txt)
neither="Packages are missing, and there is neither root nor sudo. As root, run this once, then try again:
apt-get update && apt-get install -y --no-install-recommends"

machine 1000 "$to_run $to_test"
install "nothing missing, not root" 0 "Packages: all there."

machine 0 "$to_run"
install "root" 0 "Packages: installing $to_test
apt-get update -q
apt-get install -y --no-install-recommends $to_test"

machine 1000 "$to_run"
# shellcheck disable=SC2016 # expanded when it runs
fake sudo 'echo "sudo $*"; exec "$@"'
install "sudo" 0 "Packages: installing $to_test
sudo apt-get update -q
apt-get update -q
sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $to_test
apt-get install -y --no-install-recommends $to_test"

fake sudo 'echo "not allowed"; exit 1'
install "sudo that refuses" 1 "Packages: installing $to_test
not allowed
The packages could not be installed. As root, run this once, then try again:
apt-get update && apt-get install -y --no-install-recommends $to_test"

machine 1000 "$to_run ${to_test#* }"
install "one missing, neither root nor sudo" 1 "$neither ${to_test%% *}"

# The scripts themselves end there: nothing else is on this PATH. The package that ends with what another begins with
# is not taken for it.
machine 1000 "$to_test x${to_run%% *}x"
expect "run.sh, neither root nor sudo" 1 "$neither $to_run" ./run.sh
machine 1000 ""
expect "run.sh wants no packages of the tests" 1 "$neither $to_run" "$root/run.sh"
expect "test.sh, neither root nor sudo" 1 "$neither $to_run $to_test" ./test.sh

twice=$(names run-packages.txt test-packages.txt ci-packages.txt | tr ' ' '\n' | sort | uniq -d)
[ -z "$twice" ] || { echo "FAILED: in more than one list: $twice"; failed=1; }
exit $failed
