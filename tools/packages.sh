# shellcheck shell=bash
# Installs the missing packages of cmake/packages.txt. To be sourced; expects the project's folder in `root`.
: "${root:?}"

# packages_of SECTION... : the names in these sections, one per line.
packages_of() {
    local section
    for section in "$@"; do
        awk -v wanted="[$section]" '
            /^\[/ { inside = ($1 == wanted); found = found || inside; next }
            inside && NF && $1 !~ /^#/ { print $1 }
            END { if (!found) { print "no section " wanted > "/dev/stderr"; exit 1 } }
        ' "$root/cmake/packages.txt" || return 1
    done
}

# missing_packages SECTION... : those that are not installed, one per line.
missing_packages() {
    local names
    names=$(packages_of "$@") || return 1
    # shellcheck disable=SC2086
    comm -23 <(sort -u <<<"$names") \
        <(dpkg-query -W -f='${db:Status-Abbrev} ${Package}\n' $names 2>/dev/null |
            awk '$1 ~ /^.i/ { print $2 }' | sort -u)
}

# as_root COMMAND... : runs it as root, asking for the password only now.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif ! command -v sudo >/dev/null; then
        echo "This needs root, and there is no sudo. As root: $*" >&2
        return 1
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

# ensure_packages SECTION... : installs missing packages; does nothing if there are none.
ensure_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "Not a Debian system: what cmake/packages.txt lists is taken to be there." >&2
        return 0
    fi
    local names
    names=$(missing_packages "$@") || return 1
    [ -n "$names" ] || return 0
    echo "Installing: ${names//$'\n'/ }"
    as_root apt-get update -q ||
        echo "The package index could not be refreshed; trying with the one that is there." >&2
    # shellcheck disable=SC2086
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
        -o DPkg::Lock::Timeout=300 $names </dev/null || return 1
    names=$(missing_packages "$@") || return 1
    if [ -n "$names" ]; then
        echo "Still missing: ${names//$'\n'/ }" >&2
        return 1
    fi
}
