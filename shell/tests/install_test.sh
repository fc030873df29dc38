#!/usr/bin/env bash
# Installs into a temporary prefix and starts Zavoren! through its launcher, as a user would.
set -euo pipefail
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" > "$work/install.log"

for f in bin/zavoren bin/zavoren-db bin/zavoren-sheet libexec/zavoren/zavoren libexec/zavoren/zavoren-progress.so share/zavoren/database share/zavoren/lexicon share/zavoren/Zavoren.html \
         share/applications/io.github.zavoren.Zavoren.desktop share/metainfo/io.github.zavoren.Zavoren.metainfo.xml \
         share/icons/hicolor/64x64/apps/io.github.zavoren.Zavoren.png share/icons/hicolor/scalable/apps/io.github.zavoren.Zavoren.svg \
         share/man/man1/zavoren.1.gz share/man/man1/zavoren-db.1.gz share/man/man1/zavoren-sheet.1.gz share/doc/zavoren/copyright share/doc/zavoren/changelog.gz; do
    [ -e "$prefix/$f" ] || { echo "missing after install: $f"; exit 1; }
done
"$prefix/bin/zavoren-db" info "$prefix/share/zavoren/database" > /dev/null
# One lexicon serves the database in every language: 明 (id 104) is made of 日 and 月.
for database in database database-fr database-es database-pt; do
    parts=$("$prefix/bin/zavoren-db" words --db "$prefix/share/zavoren/$database" --lexicon "$prefix/share/zavoren/lexicon" --char 104 | head -n 1)
    [ "$parts" = "$(printf 'parts\t日 月')" ] || { echo "lexicon and $database: $parts"; exit 1; }
done
# 水 written freehand (a recorded ink file) is found first by the installed recognizer, with
# Debian's handwriting model; a practice sheet of three characters is written as a PDF.
water=$("$prefix/bin/zavoren-db" find --db "$prefix/share/zavoren/database" \
    --ink "$(dirname "$0")/../../tools/tests/data/water-freehand.json" | head -n 1)
[ "${water%%$'\t'*}" = 43 ] || { echo "water written is not found first: $water"; exit 1; }
"$prefix/bin/zavoren-sheet" --db "$prefix/share/zavoren/database" --chars 0,1,2 --out "$work/sheet.pdf" \
    --lexicon "$prefix/share/zavoren/lexicon" > /dev/null 2>&1
[ -s "$work/sheet.pdf" ] || { echo "zavoren-sheet wrote no PDF"; exit 1; }
# The progress window's module finds every library it needs.
if ldd "$prefix/libexec/zavoren/zavoren-progress.so" | grep -q 'not found'; then
    echo "the progress module misses libraries"; ldd "$prefix/libexec/zavoren/zavoren-progress.so"; exit 1
fi

export XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime
mkdir -m 700 -p "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=offscreen

# First use: the data folder is prepared.
"$prefix/bin/zavoren" --prepare
folder=$XDG_DATA_HOME/zavoren
grep -q '<Users/>' "$folder/config.xml" || { echo "config.xml not prepared"; exit 1; }
[ -L "$folder/database" ] && [ -L "$folder/Zavoren.html" ] || { echo "database or help not linked"; exit 1; }
[ "$(readlink "$folder/lexicon")" = "$prefix/share/zavoren/lexicon" ] || { echo "lexicon not linked"; exit 1; }

# The meanings follow the learner's language; English where there is no database for it.
for language in fr es pt; do
    [ -f "$prefix/share/zavoren/database-$language" ] || { echo "missing database-$language"; exit 1; }
done
LANGUAGE=fr "$prefix/bin/zavoren" --prepare
[ "$(readlink "$folder/database")" = "$prefix/share/zavoren/database-fr" ] || { echo "no French database: $(readlink "$folder/database")"; exit 1; }
LANGUAGE= LC_ALL= LC_MESSAGES= LANG=pt_BR.UTF-8 "$prefix/bin/zavoren" --prepare
[ "$(readlink "$folder/database")" = "$prefix/share/zavoren/database-pt" ] || { echo "no Portuguese database"; exit 1; }
LANGUAGE=de "$prefix/bin/zavoren" --prepare
[ "$(readlink "$folder/database")" = "$prefix/share/zavoren/database" ] || { echo "no English database for German"; exit 1; }
# A database the learner placed there stays, as a file or as a link of their own.
cp "$prefix/share/zavoren/database-es" "$work/mine"
ln -sfn "$work/mine" "$folder/database"
LANGUAGE=fr "$prefix/bin/zavoren" --prepare
[ "$(readlink "$folder/database")" = "$work/mine" ] || { echo "the learner's database link was replaced"; exit 1; }
rm "$folder/database"
cp "$work/mine" "$folder/database"
LANGUAGE=fr "$prefix/bin/zavoren" --prepare
[ -f "$folder/database" ] && [ ! -L "$folder/database" ] || { echo "the learner's database was replaced"; exit 1; }
rm "$folder/database"
"$prefix/bin/zavoren" --prepare

# An existing learner file is never overwritten.
printf '<Zavoren><Users currentUser="Anna"><User name="Anna"/></Users></Zavoren>' > "$folder/config.xml"
"$prefix/bin/zavoren" --prepare
grep -q 'Anna' "$folder/config.xml" || { echo "config.xml overwritten"; exit 1; }

# A start through the launcher, closed after the first paint: exit code 1 and Anna saved.
set +e
"$prefix/bin/zavoren" --quit-after-first-paint --instance-name "install test $work" 2> "$work/run.log"
code=$?
set -e
[ "$code" -eq 1 ] || { echo "launcher start ended with $code"; cat "$work/run.log"; exit 1; }
grep -q 'home page painted' "$work/run.log" || { echo "home page not painted"; cat "$work/run.log"; exit 1; }
grep -q 'categoryId="0"' "$folder/config.xml" || { echo "learner not saved"; exit 1; }
echo "install test passed"
