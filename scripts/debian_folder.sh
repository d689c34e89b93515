# A Debian 12 of its own in a folder that goes with the script. Sourced by fresh and by the test of
# the package, after packages.sh. TMPDIR says where it lies (4 GB; /var/tmp otherwise).

# own_debian SCRIPT "$@": the script once more, as root, with mounts and processes of its own. Only
# that run goes on; fresh_root is its folder.
own_debian() {
  if [ "$(id -u)" -ne 0 ]; then exec sudo TMPDIR="${TMPDIR:-}" "$@"; fi
  [ -z "${fresh_root:-}" ] || return 0
  # The outer run owns the folder, the inner one mounts and processes: whatever happens to it, they go.
  need_packages debootstrap git
  fresh_root=$(mktemp -d "${TMPDIR:-/var/tmp}/tockly-fresh.XXXXXX")
  export fresh_root
  chmod 755 "$fresh_root"
  inner= status=0
  # Nor does a second signal stop the clearing away.
  trap 'trap "" INT TERM HUP
    [ -z "$inner" ] || { kill -KILL "$inner"; wait "$inner"; } 2>/dev/null || true
    rm -rf --one-file-system "$fresh_root" "$fresh_root.log"' EXIT
  trap 'exit 130' INT TERM HUP
  unshare --mount --pid --ipc --fork --kill-child --mount-proc "$@" &
  inner=$!
  wait "$inner" || status=$?
  inner=
  exit "$status"
}

# make_debian: nothing but the base and sudo, from this machine's mirror, reached as this machine does.
make_debian() {
  local sources mirror settings proxy include file
  sources=$(apt-get indextargets --format '$(ORIGIN) $(REPO_URI) $(RELEASE) $(COMPONENT) $(CREATED_BY)' |
    awk '$1 == "Debian" && $3 ~ /^bookworm/ && $4 == "main" && $5 == "Packages" { print "deb", $2, $3, $4 }' | sort -u)
  mirror=$(awk '$3 == "bookworm" { print $2; exit }' <<<"$sources")
  [ -n "$mirror" ] || { echo "apt knows no mirror of bookworm here" >&2; exit 1; }
  settings=$(apt-config dump | grep -E '^Acquire::(http|https|Check)[^ ]* "' || true)
  proxy=$(apt-config shell proxy Acquire::http::Proxy | sed "s/^proxy='\(.*\)'$/\1/")
  [ -z "$proxy" ] || export http_proxy="$proxy"

  echo "== an empty Debian in $fresh_root"
  include=sudo
  case "$sources" in *https://*) include=sudo,ca-certificates ;; esac
  debootstrap --variant=minbase --include="$include" bookworm "$fresh_root" "$mirror" >"$fresh_root.log" 2>&1 ||
    { tail -n 20 "$fresh_root.log"; rm -f "$fresh_root.log"; exit 1; }
  rm -f "$fresh_root.log"
  echo "$sources" >"$fresh_root/etc/apt/sources.list"
  echo "$settings" >"$fresh_root/etc/apt/apt.conf.d/00machine"
  # Certificates that the settings name come along.
  for file in $(sed -n 's/.*CaInfo "\(.*\)";/\1/p' <<<"$settings"); do
    install -D "$file" "$fresh_root$file"
  done
  mount -t proc proc "$fresh_root/proc"
  mount -t tmpfs -o mode=1777 tmpfs "$fresh_root/dev/shm"
  mount -t devpts -o newinstance,ptmxmode=666 devpts "$fresh_root/dev/pts"
  echo "127.0.0.1 localhost $(hostname)" >"$fresh_root/etc/hosts"
}

# add_user NAME
add_user() { chroot "$fresh_root" useradd --create-home --shell /bin/bash "$1"; }
