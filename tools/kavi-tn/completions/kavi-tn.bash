# bash completion for kavi-tn
_kavi_tn() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    # Readline makes "=" a word of its own.
    [ "$current" = = ] && current=
    [ "$previous" = = ] && previous=${COMP_WORDS[COMP_CWORD - 2]}
    case $previous in
        --format) mapfile -t COMPREPLY < <(compgen -W "text jsonl html ssml" -- "$current") && return ;;
        --fields)
            local before=
            [[ $current == *,* ]] && before=${current%,*},
            mapfile -t COMPREPLY < <(compgen -P "$before" -W "input line sentence offset length source
                normalized speakable plain before words findings runs version" -- "${current##*,}") && return ;;
        --without) mapfile -t COMPREPLY < <(compgen -W "titles contractions currencies units years times
                addresses roman numbers letters shields marks" -- "$current") && return ;;
        -t | --text | -j | --jobs | --part) return ;;
    esac
    case $current in
        -*) mapfile -t COMPREPLY < <(compgen -W "-t --text -o --output -0 --null -j --jobs --strict
            --findings --summary --format --fields --marks --part --lexicon --everyday --without --american-dates --stream --check --sentences --speakable --plain --words --explain -h --help
            --version" -- "$current") ;;
        *) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    esac
}
complete -o filenames -F _kavi_tn kavi-tn
