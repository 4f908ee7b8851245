# shellcheck shell=bash
# What of a package comes from the commit that it is made from. To be sourced; expects the project's folder in `root`.
: "${root:?}"

# commit_time : in seconds since 1970; without a repository, when the list of changes was written.
commit_time() {
    git -C "$root" log -1 --format=%ct 2>/dev/null || stat -c %Y "$root/CHANGELOG.md"
}

# commit_version VERSION : the package's version. VERSION itself at its tag; before that one that is lower and grows with
# each commit.
commit_version() {
    local version=$1 changed=
    if git -C "$root" describe --exact-match --match "v$version" >/dev/null 2>&1; then
        echo "$version"
        return
    fi
    [ -z "$(git -C "$root" status --porcelain 2>/dev/null)" ] || changed=+changed
    echo "$version~git$(date -u -d "@$(commit_time)" +%Y%m%d.%H%M%S)$changed"
}
