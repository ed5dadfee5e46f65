#!/bin/sh
# Draws NORVANE_1281.png from its source: 256 pixels a side for an area of 128 points, so that it is
# sharp at 200 %. Needs rsvg-convert and the DejaVu fonts.
cd "$(dirname "$0")" && rsvg-convert --width 256 --height 256 norvane.svg --output NORVANE_1281.png
