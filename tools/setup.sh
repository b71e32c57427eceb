# Shared by ./run, ./test and .ci/run, which source it: packages, builds, plain messages. All messages go to the
# standard error stream, so that what tavrin-cli prints can be piped. A step that takes no time says nothing.
# shellcheck shell=bash disable=SC2034
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build_packages=(g++ cmake ninja-build ccache pkg-config python3 qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-l10n-tools
    qt6-webengine-dev
    libgl1-mesa-dev breeze-icon-theme
    libvips-dev libraw-dev libexif-dev libjpeg-dev libtiff-dev libpng-dev zlib1g-dev liblcms2-dev libcups2-dev
    libcurl4-openssl-dev libpugixml-dev libtbb-dev libhwy-dev libcli11-dev libgtest-dev libgmock-dev libbenchmark-dev)
test_packages=(xvfb xauth fonts-liberation xfonts-scalable qt6-translations-l10n
    cups cups-ipp-utils dbus-daemon poppler-utils python3-aiosmtpd openssl ca-certificates)
format_packages=(clang-format-14)
farm_packages=(slurmctld slurmd slurm-client munge)

say() { printf '%s\n' "$*" >&2; }

fail() {
    printf '%s\n' "$@" >&2
    exit 1
}

# step LABEL LOG COMMAND...: runs the command with its output in LOG, and shows the part that matters on failure.
step() {
    local label=$1 log=$2 start=$SECONDS first
    shift 2
    mkdir -p "$(dirname "$log")"
    if ! "$@" >"$log" 2>&1; then
        say "$label: failed. From $log:"
        first=$(grep -nm1 -E '^FAILED: |CMake Error' "$log" | cut -d: -f1) || true
        if [ -n "$first" ]; then tail -n "+$first" "$log" | head -n 40 >&2; else tail -n 40 "$log" >&2; fi
        exit 1
    fi
    if [ "$SECONDS" -gt "$start" ]; then say "$(printf '%-28s %4d s' "$label" $((SECONDS - start)))"; fi
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; elif [ -t 0 ]; then sudo "$@"; else sudo -n "$@"; fi
}

install_packages() {
    # Old package lists may still do, so only the installation decides.
    as_root apt-get -q update || echo "apt-get update failed"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "$@"
}

# need PACKAGE...: installs those that are missing; touches neither apt nor the network when none is.
need() {
    local package missing=() hint
    if ! command -v dpkg-query >/dev/null; then
        say "No dpkg here: Tavrin builds on with what is installed. On Debian 12 the packages are: $*"
        return
    fi
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    hint="Missing packages: ${missing[*]}"
    [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null ||
        fail "$hint" "To install them root or sudo is needed. As root:" \
            "  apt-get install --no-install-recommends ${missing[*]}"
    say "Installing ${missing[*]}"
    mkdir -p build
    install_packages "${missing[@]}" >build/packages.log 2>&1 || explain_packages "$hint"
}

explain_packages() {
    local log=build/packages.log reason="they could not be installed"
    if grep -q '^sudo: ' "$log"; then
        reason="sudo refused to install them"
    elif grep -qE 'resolv|Could not connect|unreachable|Failed to fetch' "$log"; then
        reason="they could not be fetched: no network, or no way to the package server"
    elif grep -q 'Unable to locate' "$log"; then
        reason="the system does not know them under these names (Tavrin is made for Debian 12)"
    fi
    say "$1"
    say "But $reason. From $log:"
    { grep -E '^(E|W|Err|sudo):' "$log" || cat "$log"; } | tail -n 8 >&2
    exit 1
}

# build PRESET: configures and builds everything of the preset.
build() {
    step "configure $1" "build/$1/configure.log" cmake --preset "$1"
    step "build $1" "build/$1/build.log" cmake --build --preset "$1"
}
