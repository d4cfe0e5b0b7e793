#compdef ordelin
# SPDX-License-Identifier: MIT
# Completion of the command line of ordelin, for zsh.

local -a verbs
verbs=(
    'info:shows what is in files'
    'convert:turns a file into another format'
    'merge:puts several files together into one'
    'check:looks for mistakes in entries'
    'sort:sorts the entries'
    'shuffle:shuffles the entries'
    'select:selects entries'
    'table:makes a table as HTML, text or PDF'
    'quiz:quizzes you on the entries'
    'words:looks terms up in dictionaries'
)
if (( CURRENT == 2 )); then
    if [[ $words[2] == -* ]]; then
        _arguments '--new[begin a new list]' '--help[show a short help]' '--version[show the version]' \
            '--export-strings[write the texts as a template for a translation]'
    else
        _alternative 'verbs:verb:(('"${(j: :)${(@q)verbs}}"'))' 'files:file:_files'
    fi
    return
fi

local verb=$words[2]
shift words
(( CURRENT-- ))
case $verb in
info)
    _arguments \
        '--json[writes JSON]' \
        '--from=[the format that is read; otherwise it is recognised]:value:(glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt)' \
        '--help[shows a help]' '*:file:_files'
    ;;
convert)
    _arguments \
        '--from=[the format that is read; otherwise it is recognised]:value:(glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt)' \
        '--from-separator=[what separates the columns of the file that is read]:value:(comma semicolon tab pipe)' \
        '--from-columns=[the columns\: term1,term2,note,flag1,flag2 or -]:value:' \
        '--from-heading=[whether the first row is a heading]:value:(yes no)' \
        '--from-quote=[what stands around texts]:value:(double single none)' \
        '--from-encoding=[the encoding of the file]:value:(windows-1252 utf-16be utf-16le utf-8)' \
        '--languages=[two of the languages of the file, such as 1,3]:value:' \
        '--split-semicolons[semicolons separate alternatives]' \
        '--split-commas[commas separate alternatives]' \
        '--split-slashes[slashes separate alternatives]' \
        '--comments-in-parentheses[(...) become comments]' \
        '--to=[the format that is written; otherwise by the name]:value:(glossary gls kvtml anki separated csv tsv text txt)' \
        '--to-separator=[what separates the columns of the file that is written]:value:(comma semicolon tab pipe)' \
        '--to-columns=[the columns\: term1,term2,note,flag1,flag2]:value:' \
        '--to-heading=[whether the first row becomes a heading]:value:(yes no)' \
        '--to-encoding=[the encoding of the file]:value:(windows-1252 utf-16be utf-16le utf-8)' \
        '--to-mark=[whether UTF-8 begins with a mark]:value:(yes no)' \
        '--terms=[which terms a text document gets]:value:(both term1 term2)' \
        '--alternatives=[what separates alternatives]:value:(asterisk semicolon comma slash)' \
        '--unicode[always writes word list files as Unicode]' \
        '--force[replaces a file that is there already]' \
        '--help[shows a help]' '*:file:_files'
    ;;
merge)
    _arguments \
        '--ignore-duplicates[leaves out entries that are there already]' \
        '--languages=[which languages must be those of the first file]:value:(any one both)' \
        '--min=[files with at least so many entries]:value:' \
        '--max=[files with at most so many entries]:value:' \
        '--author=[files whose author contains the text]:value:' \
        '--comments=[files whose comments contain the text]:value:' \
        '--language1=[files whose language 1 contains the text]:value:' \
        '--language2=[files whose language 2 contains the text]:value:' \
        '--from=[the format that is read; otherwise it is recognised]:value:(glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt)' \
        '--to=[the format that is written; otherwise by the name]:value:(glossary gls kvtml anki separated csv tsv text txt)' \
        '--unicode[always writes word list files as Unicode]' \
        '--force[replaces a file that is there already]' \
        '--help[shows a help]' '*:file:_files'
    ;;
check)
    _arguments \
        '--json[writes JSON]' \
        '--from=[the format that is read; otherwise it is recognised]:value:(glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt)' \
        '--help[shows a help]' '*:file:_files'
    ;;
sort)
    _arguments \
        '--by=[what the entries are sorted by]:value:(term1 term2 note)' \
        '--descending[descending order]' \
        '--by-length[short ones before long ones]' \
        '--flagged-together[flagged entries together]' \
        '--from=[the format that is read; otherwise it is recognised]:value:(glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt)' \
        '--to=[the format that is written; otherwise by the name]:value:(glossary gls kvtml anki separated csv tsv text txt)' \
        '--unicode[always writes word list files as Unicode]' \
        '--force[replaces a file that is there already]' \
        '--help[shows a help]' '*:file:_files'
    ;;
shuffle)
    _arguments \
        '--seed=[gives the same chance every time]:value:' \
        '--from=[the format that is read; otherwise it is recognised]:value:(glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt)' \
        '--to=[the format that is written; otherwise by the name]:value:(glossary gls kvtml anki separated csv tsv text txt)' \
        '--unicode[always writes word list files as Unicode]' \
        '--force[replaces a file that is there already]' \
        '--help[shows a help]' '*:file:_files'
    ;;
select)
    _arguments \
        '--flagged=-[entries with a flag]::value:(any 1 2 both)' \
        '--not-flagged=-[entries without a flag]::value:(any 1 2 both)' \
        '--find=[entries that contain the text]:value:' \
        '--in=[where the text is to be found]:value:(term1 term2 note)' \
        '--match-case[tells capital and small letters apart]' \
        '--whole-words[whole words only]' \
        '--wildcards[* is any characters, ? is any one]' \
        '--number=[at most so many entries, the first ones]:value:' \
        '--from=[the format that is read; otherwise it is recognised]:value:(glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt)' \
        '--to=[the format that is written; otherwise by the name]:value:(glossary gls kvtml anki separated csv tsv text txt)' \
        '--unicode[always writes word list files as Unicode]' \
        '--force[replaces a file that is there already]' \
        '--help[shows a help]' '*:file:_files'
    ;;
table)
    _arguments \
        '--format=[otherwise by the name, or HTML]:value:(html text pdf)' \
        '--columns=[number,term1,term2,note,empty-term1,empty-term2,empty-note]:value:' \
        '--title=[a title above the table]:value:' \
        '--full-width[as wide as the page]' \
        '--border=[the width of the lines, 0 to 30]:value:' \
        '--bold=[what is bold]:value:(flagged not-flagged all number term1 term2 none)' \
        '--special=[what has a background of its own]:value:(flagged not-flagged number term1 term2)' \
        '--special-color=[the colour of that background]:value:' \
        '--table-color=[the background colour of the table]:value:' \
        '--page-color=[the background colour of the page]:value:' \
        '--text-color=[the colour of the text]:value:' \
        '--comments=[what becomes of comments]:value:(keep italic italic-in-parentheses delete)' \
        '--alternatives=[what stands in place of *]:value:' \
        '--paper=[the paper of a PDF file]:value:(a3 a4 a5 letter legal)' \
        '--landscape[paper across]' \
        '--from=[the format that is read; otherwise it is recognised]:value:(glossary gls wordquiz kvtml dictionary anki separated csv tsv text txt)' \
        '--force[replaces a file that is there already]' \
        '--help[shows a help]' '*:file:_files'
    ;;
quiz)
    _arguments \
        '--ask=[the language of the question]:value:(1 2)' \
        '--order=[the order of the words]:value:(list backwards random)' \
        '--rounds=[the number of rounds]:value:' \
        '--words=[the number of words, drawn by chance]:value:' \
        '--flagged=[whether flagged words are asked]:value:(never always sometimes)' \
        '--wrong=[what becomes of words answered wrong]:value:(leave later again)' \
        '--check=[which characters count]:value:(all letters letters-and-blanks)' \
        '--ignore-case[takes capital and small letters for the same]' \
        '--save-flags[writes flags and accepted answers to the file]' \
        '--seed=[gives the same chance every time]:value:' \
        '--help[shows a help]' '*:file:_files'
    ;;
words)
    _arguments \
        '--beginning[all that begins so]' \
        '--dictionaries=[the folder of the dictionaries]:file:_files' \
        '--output=[the file that the entries are written to]:file:_files' \
        '--to=[the format that is written; otherwise by the name]:value:(glossary gls kvtml anki separated csv tsv text txt)' \
        '--unicode[always writes word list files as Unicode]' \
        '--force[replaces a file that is there already]' \
        '--help[shows a help]' '*:file:_files'
    ;;
esac
