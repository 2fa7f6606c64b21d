# Shared by the scripts: where things are and how to run as root.
SANDOGH_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
SANDOGH_BUILD=${SANDOGH_BUILD:-$SANDOGH_ROOT/build}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo -n "$@"
    else
        echo "sandogh: root or password-less sudo is needed for: $*" >&2
        return 1
    fi
}
