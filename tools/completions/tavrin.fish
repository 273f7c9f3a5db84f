# Completion of tavrin's command line in fish. The tool itself knows what may follow.
function __tavrin_complete
    set -l words (commandline --current-process --tokenize --cut-at-cursor)
    set -l last (commandline --current-token --cut-at-cursor)
    for line in (command $words[1] __complete $words[2..-1] "$last" 2>/dev/null)
        if test "$line" = :files
            set -l head (string match --regex '^--[a-z-]+=' -- $last)
            set -l begun (string replace --regex '^--[a-z-]+=' '' -- $last)
            string replace --regex '^' "$head" -- (__fish_complete_path "$begun")
        else
            echo $line
        end
    end
end
complete --command tavrin --no-files --arguments '(__tavrin_complete)'
