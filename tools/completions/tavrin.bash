# Completion of tavrin's command line in bash. The tool itself knows what may follow.
_tavrin() {
  local words=() piece rest=${COMP_LINE:0:COMP_POINT} last head= candidate
  rest=${rest#*"${COMP_WORDS[0]}"}
  # Readline cuts words at characters such as '=', at which the tool's words go on.
  for piece in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
    if [[ ${#words[@]} -eq 0 || $rest == [[:blank:]]* ]]; then
      words+=("$piece")
    else
      words[-1]+=$piece
    fi
    rest=${rest#*"$piece"}
  done
  last=${words[-1]}
  # Only what follows the cut is put in.
  [[ $COMP_WORDBREAKS != *=* || $last != *=* ]] || head=${last%=*}=
  COMPREPLY=()
  while IFS=$'\t' read -r candidate _; do
    if [[ $candidate == :files ]]; then
      compopt -o default
      continue
    fi
    [[ $candidate != *= ]] || compopt -o nospace
    COMPREPLY+=("${candidate#"$head"}")
  done < <("${1/#\~/$HOME}" __complete "${words[@]}" 2>/dev/null)
}
complete -F _tavrin tavrin
