# The Debian packages that the scripts of the root need; read with ".".
# shellcheck shell=sh disable=SC2034
build_packages="g++ cmake ninja-build libfmt-dev libutfcpp-dev libboost-dev libstb-dev libcli11-dev nlohmann-json3-dev \
  libcsv-dev libpugixml-dev qt6-base-dev qt6-translations-l10n librsvg2-bin libgl1-mesa-dev fonts-dejavu-core"
# php-symfony-translation has the schema of XLIFF.
test_packages="libgtest-dev libgmock-dev librapidcheck-dev qt6-base-private-dev srecord binutils python3 python3-fonttools \
  translate-toolkit libxml2-utils php-symfony-translation clang libclang-rt-14-dev clang-format clang-tidy xvfb xauth \
  mandoc zsh fish dpkg-dev desktop-file-utils appstream shared-mime-info libglib2.0-bin dbus at-spi2-core python3-pyatspi nsis netpbm"
windows_packages="g++-mingw-w64-x86-64-posix googletest qt6-base-dev-tools dpkg-dev debian-archive-keyring icoutils nsis netpbm osslsigncode"
windows_test_packages="wine wine64 fonts-liberation xvfb x11-utils xdotool imagemagick xxd python3"
package_packages="git dpkg-dev patchelf xz-utils"
package_test_packages="lintian debootstrap debian-archive-keyring dpkg-dev xvfb x11-utils"
bench_packages="libbenchmark-dev srecord binutils gettext translate-toolkit time linguist-qt6 poedit python3 python3-xlib xvfb xauth"
fuzz_packages="clang libclang-rt-14-dev"
coverage_packages="clang llvm libclang-rt-14-dev"
