#!/usr/bin/env bash
# Writes the API documentation of the PDF library with Doxygen; fails on any warning and on any
# public member that has no comment.
#
#   docs/api/genera.sh FOLDER     the pages begin with FOLDER/html/index.html
set -euo pipefail
mkdir -p "$1"
USCITA=$(cd "$1" && pwd)
# Relative paths from here on: Doxygen hands the filter's to a shell, where a blank would part them.
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
VERSIONE=$(sed -n 's/.*WriterVersion = "\(.*\)";/\1/p' pdf/clsPDFCreator_Core.cpp)
export USCITA VERSIONE
exec doxygen docs/api/Doxyfile
