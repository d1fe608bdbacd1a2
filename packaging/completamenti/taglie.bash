# shellcheck shell=bash
# Completion of taglie for bash. It needs no helper functions of other packages.

# The words that start like $2, one a line of the answer; $1 is the list.
_taglie_tra()
{
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$2")
}

_taglie_percorsi()
{
    mapfile -t COMPREPLY < <(compgen "$1" -- "$2")
    # Outside a completion, as in a test, there is nothing to tell the shell.
    compopt -o filenames 2>/dev/null
}

_taglie_valore()
{
    case $1 in
        -f | --forma) _taglie_tra "txt html pdf video nessuna" "$2" ;;
        --numeri) _taglie_tra "sistema it c" "$2" ;;
        --dati) _taglie_tra "json csv" "$2" ;;
        --avanzamento) _taglie_tra "auto sempre mai" "$2" ;;
        -c | --cartella) _taglie_percorsi -d "$2" ;;
        -o | --uscita | --mazzi | --salva-mazzi | --colpi) _taglie_percorsi -f "$2" ;;
        --seme | -j | --lavori) ;;
        *) return 1 ;;
    esac
}

_taglie()
{
    local attuale=${COMP_WORDS[COMP_CWORD]} prima=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    # "--forma=ht" comes as three words.
    if [[ $attuale == = ]]; then
        attuale=
    elif [[ $prima == = && $COMP_CWORD -ge 2 ]]; then
        prima=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    if _taglie_valore "$prima" "$attuale"; then return; fi
    if [[ $attuale == -* ]]; then
        _taglie_tra "-f --forma -s --statistiche -c --cartella -o --uscita -a --apri --compatto --caratteri-unici
            --numeri --seme --mazzi --salva-mazzi --colpi --dati -j --lavori --avanzamento
            -q --quieto -h --help -V --version" "$attuale"
    fi
}

complete -F _taglie taglie
