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

is_installed() {
    dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# A device's package: the stand-ins' own files serve as its libraries.
make_device_package() {
    dpkg-deb -x platform-widgets-standins_*.deb device
    mkdir device/DEBIAN
    cat >device/DEBIAN/control <<'END'
Package: some-device-libraries
Version: 1.0
Architecture: all
Maintainer: nobody <nobody@example.org>
Provides: platform-device-libraries
Conflicts: platform-device-libraries
Description: device libraries
END
    dpkg-deb -b device some-device-libraries.deb >/dev/null
}

echo "== A device with libraries of its own gets no stand-in"
make_device_package
install ./some-device-libraries.deb ./libplatform-widgets1.2_*.deb
! is_installed platform-widgets-standins || fail "the stand-ins were installed"
is_installed libqt5svg5 || fail "the plugin that reads the icons was not installed"
ldconfig -p | grep -q 'libplatform_widgets\.so\.1\.2' || fail "the loader does not know the library"
! ldd /usr/lib/*/libplatform_widgets.so.1.2 | grep 'not found' || fail "the library misses others"
apt-get purge -qq -y some-device-libraries libplatform-widgets1.2 >/dev/null 2>&1

echo "== The gallery with what it depends on"
install ./libplatform-widgets1.2_*.deb ./platform-widgets-standins_*.deb ./platform-widgets-gallery_*.deb
! is_installed qtbase5-dev || fail "the gallery brought development files"
platform-widgets-gallery --list-pages >pages
mkdir /pictures
platform-widgets-gallery --screenshots /pictures >pictures.txt
[ -s pictures.txt ] || fail "the gallery took no picture"
while IFS= read -r picture; do
    [ -s "$picture" ] || fail "$picture is empty"
done <pictures.txt
echo "$(wc -l <pages) pages, $(wc -l <pictures.txt) pictures"

install ./libplatform-widgets-dev_*.deb cmake g++ make pkg-config qt5-qmake

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

echo "== Qt Designer"
install ./platform-widgets-designer_*.deb
QT_DEBUG_PLUGINS=1 runs_until_stopped /usr/lib/qt5/bin/designer AllWidgets.ui 2>designer.log
grep 'loaded library.*libplatform_widgets_designer\.so' designer.log \
    || fail "Designer does not load the plugin"

echo "== The reference"
install ./libplatform-widgets-doc_*.deb
for page in index classSwitch classui_1_1KeypadLineEdit; do
    [ -s "/usr/share/doc/platform_widgets/html/$page.html" ] || fail "there is no $page.html"
done
/usr/lib/qt5/bin/assistant -quiet -register /usr/share/doc/platform_widgets/platform_widgets.qch \
    || fail "Assistant does not take the reference"

echo "== Removed without a trace"
apt-get purge -qq -y '*platform-widgets*' >/dev/null 2>&1
left=$(find /usr \( -name '*platform_widgets*' -o -name '*platform-widgets*' \
    -o -name 'libplatform_*' \) -print)
[ -z "$left" ] || fail "left behind: $left"
