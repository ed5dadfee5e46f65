#!/bin/sh
# Draws the icons of all sizes and platforms from their two sources. They are kept with the sources so
# that a build needs neither these tools nor the fonts: rsvg-convert, png2icns, icotool, DejaVu.
set -eu
cd "$(dirname "$0")"
picture=../../resources/norvane.svg

for size in 16 22 24 32; do
    rsvg-convert --width $size --height $size norvane-small.svg --output $size.png
done
for size in 48 64 128 256 512; do
    rsvg-convert --width $size --height $size $picture --output $size.png
done
png2icns norvane.icns 16.png 32.png 48.png 128.png 256.png 512.png
icotool --create --output=norvane.ico 16.png 24.png 32.png 48.png 64.png --raw=256.png
