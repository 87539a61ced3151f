# The Debian packages that the scripts of the root need; read with ".".
build_packages="g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libcsv-dev qt6-base-dev qt6-svg-dev libgl1-mesa-dev"
test_packages="libgtest-dev libgmock-dev librapidcheck-dev srecord binutils python3 clang-format clang-tidy fonts-dejavu-core"
bench_packages="libbenchmark-dev srecord binutils time"
fuzz_packages="clang libclang-rt-14-dev"
coverage_packages="gcovr"
