#!/usr/bin/env bash
# Makes build/norvane.html, the program in a page. Installs what that needs where it is missing (Debian 12).
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/scripts/common.sh"

configure web $page_packages
build web norvane_page
cp "$root/build/web/web/norvane.html" "$root/build/norvane.html"
echo "The page is build/norvane.html, $(stat -c %s "$root/build/norvane.html") bytes. Open it in a browser."
