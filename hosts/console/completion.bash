# Completion of zilvo for bash. Commands, options and what these take are as the program's own help says, classes and
# resources as the component says.

_zilvo() {
    local program=$1 word=$2 before=$3 command='' script='' kind='' words='' i
    local -a files=() # the options that name the files to be used
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        --component | --registrations) files+=("${COMP_WORDS[i]}" "${COMP_WORDS[++i]/#\~\//$HOME/}") ;;
        -*) ;;
        *) if [ -z "$command" ]; then command=${COMP_WORDS[i]}; else script=${COMP_WORDS[i]}; fi ;;
        esac
    done
    local help
    help=$("$program" --help && "$program" ${command:+"$command"} --help 2>/dev/null)

    # What is to be completed: the value of an option, an option, a command, what a command takes.
    if [[ $command == run && $script ]]; then
        kind=any # the script's own
    elif [[ $before == -* ]]; then
        kind=$(sed -nE "s/^  (-.,)?$before(,--[a-z]+)? ([A-Z]+(\.[a-z]+)?)([ :].*)?$/\3/p" <<<"$help" | sort -u)
    fi
    if [ -z "$kind" ]; then
        case $word,$command in
        -*) kind=option ;;
        *,) kind='command' ;;
        *,run) kind=FILE.lua ;;
        *) kind=$(sed -nE 's/^  [a-z]+ ([A-Z]+(\.[a-z]+)?)( .*)?$/\1/p' <<<"$help") ;;
        esac
    fi

    case $kind in
    command) words=$(sed -n '/^Subcommands:/,$s/^  \([a-z]*\) .*/\1/p' <<<"$help") ;;
    option) words=$(sed -nE 's/^  (-.,)?(--[a-z]+).*/\2/p' <<<"$help") ;;
    CLASS)
        words=$("$program" "${files[@]}" list 2>/dev/null | sed 's/ .*//')
        [ "$command" != snapshot ] || words+=' all'
        ;;
    NAME) words=$("$program" "${files[@]}" resources 2>/dev/null | awk '/ bytes$/ { print $2 }') ;;
    FILE) [ "$before" = --registrations ] && kind=any || kind=FILE.Ocx ;;
    esac
    mapfile -t COMPREPLY < <(
        case $kind in
        any) compgen -f -- "$word" ;;
        DIR) compgen -d -- "$word" ;;
        FILE.*) compgen -f -X "!*.${kind#FILE.}" -- "$word"; compgen -d -- "$word" ;;
        *) compgen -W "$words" -- "$word" ;;
        esac
    )
    [ -n "$words" ] || compopt -o filenames
}
complete -F _zilvo zilvo
