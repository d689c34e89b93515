# Where the data of an earlier build goes. Sourced by run.

# bring_data FROM TO: takes the data that lay beside an executable along. What is there stays.
bring_data() {
  local item place
  for item in "$1"/User-* "$1"/HKEY_LOCAL_MACHINE.reg "$1"/runagain.txt; do
    place="$2/${item##*/}"
    [ -e "$item" ] || continue
    if [ -e "$place" ]; then
      echo "$item stays where it is: there is $place already."
    else
      mkdir -p "$2"
      mv -n -- "$item" "$place"
      echo "$item is now $place."
    fi
  done
}

# is_running EXECUTABLE: some process runs it, or one that has been replaced since.
is_running() {
  local exe
  for exe in /proc/[0-9]*/exe; do
    case "$(readlink "$exe" 2>/dev/null)" in
      "$1" | "$1 (deleted)") return 0 ;;
    esac
  done
  return 1
}
