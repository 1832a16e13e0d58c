#!/usr/bin/env bash
# Installs the Debian packages Skylathe builds and tests with; does nothing when all are there.
set -euo pipefail

packages=(
    cmake ninja-build g++ clang libclang-rt-14-dev clang-format
    qt6-base-dev qt6-qpa-plugins libqt6opengl6-dev libgl-dev libglu1-mesa-dev libgl1-mesa-dri
    nlohmann-json3-dev libgtest-dev libgmock-dev libbenchmark-dev
    qt6-svg-dev
    libcli11-dev libpng-dev libtinygltf-dev assimp-utils
    xvfb xauth fonts-dejavu-core
    desktop-file-utils xdg-utils shared-mime-info libglib2.0-bin
)

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [[ "$status" == "install ok installed" ]] || missing+=("$package")
done

if ((${#missing[@]} == 0)); then
    exit 0
fi

if [[ $(id -u) -ne 0 ]]; then
    echo "setup: missing packages: ${missing[*]}; run this as root to install them" >&2
    exit 1
fi
echo "setup: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${missing[@]}"
