// SPDX-License-Identifier: MIT
#include "cli/completion.h"

namespace ztk::cli {

namespace {

// @PROGRAM@ stands for the name of the program, @FUNCTION@ for this name with
// "_" in place of "-", and @CALL@ for the word that asks for completions.
constexpr char kBash[] = R"(# bash completion for @PROGRAM@ -*- shell-script -*-
# The program itself tells which words it accepts here.

_@FUNCTION@() {
  local cur words cword quote='' line word lead i
  COMPREPLY=()
  # Bash splits words at "=" and ":"; they are joined again here.
  if declare -F _get_comp_words_by_ref >/dev/null; then
    _get_comp_words_by_ref -n =: cur words cword
  else
    words=("${COMP_WORDS[@]}") cword=$COMP_CWORD cur=${COMP_WORDS[COMP_CWORD]}
  fi
  case $cur in
    [\"\']*) quote=${cur:0:1} ;;
  esac
  local -a typed=()
  for word in "${words[@]:1:cword}"; do
    typed+=("${word//[\"\'\\]/}")
  done
  # Bash replaces only what follows the last splitting character.
  lead=${cur%"${cur##*[=:]}"}
  while IFS= read -r line; do
    case $line in
      :files)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$cur")
        return
        ;;
      :command)
        for ((i = 1; i < COMP_CWORD; ++i)); do
          [[ ${COMP_WORDS[i]} != -- ]] || break
        done
        if declare -F _command_offset >/dev/null; then
          _command_offset $((i + 1))
        else
          mapfile -t COMPREPLY < <(compgen -c -f -- "$cur")
        fi
        return
        ;;
    esac
    word=${line%%$'\t'*}
    word=${word#"$lead"}
    [[ $quote ]] || printf -v word %q "$word"
    COMPREPLY+=("$word")
  done < <("$1" @CALL@ "${typed[@]}" 2>/dev/null)
}
complete -F _@FUNCTION@ @PROGRAM@
)";

constexpr char kFish[] = R"(# fish completion for @PROGRAM@
# The program itself tells which words it accepts here.

function __@FUNCTION@_complete
    set -l before (commandline -opc)
    set -l typed $before[2..-1] (commandline -ct | string trim --left --chars '"\'')
    for line in ($before[1] @CALL@ $typed 2>/dev/null)
        switch $line
            case ':files'
                __fish_complete_path (commandline -ct)
            case ':command'
                set -l mark (contains -i -- -- $typed)
                set -l rest $typed[(math $mark + 1)..-1]
                complete -C (string join ' ' -- (string escape -- $rest[1..-2]) $rest[-1])
            case '*'
                printf '%s\n' $line
        end
    end
end
complete -c @PROGRAM@ -f -a '(__@FUNCTION@_complete)'
)";

constexpr char kZsh[] = R"(#compdef @PROGRAM@
# The program itself tells which words it accepts here.

_@PROGRAM@() {
  local line word
  local -a typed offered
  for word in "${(@)words[2,CURRENT]}"; do
    typed+=("${word//[\"\'\\]/}")
  done
  while IFS= read -r line; do
    case $line in
      (:files)
        _files
        return
        ;;
      (:command)
        while [[ $words[1] != -- ]]; do
          shift words
          (( CURRENT-- ))
        done
        shift words
        (( CURRENT-- ))
        _normal
        return
        ;;
    esac
    word=${line%%$'\t'*}
    offered+=("${word//:/\\:}:${line#*$'\t'}")
  done < <(${(Q)words[1]} @CALL@ "${(@)typed}" 2>/dev/null)
  _describe -V '@PROGRAM@' offered \
    -M 'm:{[:lower:][:upper:]}={[:upper:][:lower:]}'
}

if [[ $funcstack[1] == _@PROGRAM@ ]]; then
  _@PROGRAM@ "$@"
else
  compdef _@PROGRAM@ @PROGRAM@
fi
)";

void ReplaceAll(const std::string &mark, const std::string &text,
                std::string *script) {
  for (std::size_t at = script->find(mark); at != std::string::npos;
       at = script->find(mark, at + text.size())) {
    script->replace(at, mark.size(), text);
  }
}

}  // namespace

std::string CompletionScript(const std::string &program, Shell shell) {
  std::string script = shell == Shell::Bash   ? kBash
                       : shell == Shell::Fish ? kFish
                                              : kZsh;
  std::string function = program;
  for (char &character : function) {
    if (character == '-') character = '_';
  }
  ReplaceAll("@PROGRAM@", program, &script);
  ReplaceAll("@FUNCTION@", function, &script);
  ReplaceAll("@CALL@", kCompletionCall, &script);
  return script;
}

}  // namespace ztk::cli
