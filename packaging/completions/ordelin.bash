# SPDX-License-Identifier: MIT
# Completion of the command line of ordelin, for bash. Files are completed wherever nothing else is.

_ordelin() {
    local word=$2 option= options= values=
    # Bash takes "=" for a word.
    if [ "$word" = = ]; then
        word= option=$3
    elif [ "$3" = = ]; then
        option=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "info convert merge check sort shuffle select table quiz words --new --help --version --export-strings" -- "$word"; compgen -f -- "$word")
        compopt -o filenames
        return
    fi
    case ${COMP_WORDS[1]} in
    info) options="--json --from= --help" ;;
    convert) options="--from= --from-separator= --from-columns= --from-heading= --from-quote= --from-encoding= --languages= --split-semicolons --split-commas --split-slashes --comments-in-parentheses --to= --to-separator= --to-columns= --to-heading= --to-encoding= --to-mark= --terms= --alternatives= --unicode --force --help" ;;
    merge) options="--ignore-duplicates --languages= --min= --max= --author= --comments= --language1= --language2= --from= --to= --unicode --force --help" ;;
    check) options="--json --from= --help" ;;
    sort) options="--by= --descending --by-length --flagged-together --from= --to= --unicode --force --help" ;;
    shuffle) options="--seed= --from= --to= --unicode --force --help" ;;
    select) options="--flagged --not-flagged --find= --in= --match-case --whole-words --wildcards --number= --from= --to= --unicode --force --help" ;;
    table) options="--format= --columns= --title= --full-width --border= --bold= --special= --special-color= --table-color= --page-color= --text-color= --comments= --alternatives= --paper= --landscape --from= --force --help" ;;
    quiz) options="--ask= --order= --rounds= --words= --flagged= --wrong= --check= --ignore-case --save-flags --seed= --help" ;;
    words) options="--beginning --dictionaries= --output= --to= --unicode --force --help" ;;
    *) return ;;
    esac
    case "${COMP_WORDS[1]} $option" in
    *" --from") values="glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt" ;;
    *" --to") values="glossary gls kvtml anki separated csv tsv text txt" ;;
    "convert --from-separator" | "convert --to-separator") values="comma semicolon tab pipe" ;;
    "convert --from-heading" | "convert --to-heading" | "convert --to-mark") values="yes no" ;;
    "convert --from-quote") values="double single none" ;;
    "convert --from-encoding" | "convert --to-encoding") values="windows-1252 utf-16be utf-16le utf-8" ;;
    "convert --terms") values="both term1 term2" ;;
    "convert --alternatives") values="asterisk semicolon comma slash" ;;
    "merge --languages") values="any one both" ;;
    "sort --by" | "select --in") values="term1 term2 note" ;;
    "select --flagged" | "select --not-flagged") values="any 1 2 both" ;;
    "table --format") values="html text pdf" ;;
    "table --bold") values="flagged not-flagged all number term1 term2 none" ;;
    "table --special") values="flagged not-flagged number term1 term2" ;;
    "table --comments") values="keep italic italic-in-parentheses delete" ;;
    "table --paper") values="a3 a4 a5 letter legal" ;;
    "quiz --ask") values="1 2" ;;
    "quiz --order") values="list backwards random" ;;
    "quiz --flagged") values="never always sometimes" ;;
    "quiz --wrong") values="leave later again" ;;
    "quiz --check") values="all letters letters-and-blanks" ;;
    esac
    if [ -n "$values" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
    elif [ -z "$option" ] && [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        [[ ${COMPREPLY[0]-} != *= ]] || compopt -o nospace
    fi
}
complete -o default -F _ordelin ordelin
