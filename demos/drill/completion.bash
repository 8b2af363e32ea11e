# Completion of zilvo-drill for bash.

_zilvo_drill() {
    local program=$1 word=$2
    case $3 in
    --decks) mapfile -t COMPREPLY < <(compgen -W '1 2 4 5 6 7 8 9 10 12' -- "$word") ;;
    --page) mapfile -t COMPREPLY < <(compgen -W 'setup table' -- "$word") ;;
    --screenshot)
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        compopt -o filenames
        ;;
    --seed) ;;
    *)
        local options
        options=$("$program" --help 2>/dev/null | sed -nE 's/^  (-., )?(--[a-z-]+).*/\2/p')
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        ;;
    esac
}
complete -F _zilvo_drill zilvo-drill
