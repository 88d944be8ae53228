#!/usr/bin/env bash
# Run by clean-root.sh as root inside the clean root.
set -euo pipefail

export DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96 LC_ALL=C.UTF-8
cd /check
. ./example.sh

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

install() {
    apt-get install -qq -y --no-install-recommends "$@" >/check/apt.log 2>&1 \
        || { cat /check/apt.log >&2; fail "could not install $*"; }
}

echo "== A device with libraries of its own gets no stand-in"
mkdir -p device/DEBIAN
cat >device/DEBIAN/control <<'END'
Package: some-device-libraries
Version: 1.0
Architecture: all
Maintainer: nobody <nobody@example.org>
Provides: platform-device-libraries
Description: device libraries
END
dpkg-deb -b device some-device-libraries_1.0_all.deb >/dev/null
apt-get install -s --no-install-recommends ./some-device-libraries_*.deb ./platform-widgets_*.deb >simulated
grep -q '^Inst platform-widgets ' simulated || fail "the library would not be installed"
! grep -q '^Inst platform-widgets-standins ' simulated || fail "the stand-ins would be installed"
rm some-device-libraries_1.0_all.deb

echo "== The gallery with what it depends on"
install ./platform-widgets_*.deb ./platform-widgets-standins_*.deb ./platform-widgets-gallery_*.deb
ldconfig -p | grep -q 'libplatform_widgets\.so\.1\.2' || fail "the loader does not know the library"
! dpkg -l qtbase5-dev 2>/dev/null | grep -q ^ii || fail "the gallery brought development files"
platform-widgets-gallery --list-pages >pages
mkdir /pictures
platform-widgets-gallery --screenshots /pictures >pictures.txt
[ -s pictures.txt ] || fail "the gallery took no picture"
while IFS= read -r picture; do
    [ -s "$picture" ] || fail "$picture is empty"
done <pictures.txt
echo "$(wc -l <pages) pages, $(wc -l <pictures.txt) pictures"

install ./platform-widgets-dev_*.deb cmake g++ make pkg-config qt5-qmake

echo "== CMake"
cmake -S consumer -B with-cmake >/dev/null
cmake --build with-cmake >/dev/null
runs_until_stopped with-cmake/example
with-cmake/icons || fail "the icons cannot be drawn"

echo "== pkg-config"
# shellcheck disable=SC2046
c++ -std=c++17 -fPIC consumer/main.cpp -o with-pkg-config $(pkg-config --cflags --libs platform_widgets)
runs_until_stopped ./with-pkg-config

echo "== qmake"
mkdir with-qmake
(cd with-qmake && qmake -qt=5 ../consumer/example.pro >/dev/null 2>&1 && make -s)
runs_until_stopped with-qmake/example

echo "== Other installed packages of this library"
for package in ./*.deb; do
    install "$package"
done

echo "== Removed without a trace"
apt-get purge -qq -y 'platform-widgets*' >/dev/null 2>&1
left=$(find /usr \( -name '*platform_widgets*' -o -name '*platform-widgets*' \
    -o -name 'libplatform_*' \) -print)
[ -z "$left" ] || fail "left behind: $left"
