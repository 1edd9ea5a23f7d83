# fish completion for corvana-print(1)

# Those that the program would offer with what the line says so far. A server that does not answer
# must not hold up the terminal.
function __corvana_print_printers
    set -l line (commandline -opc)
    set -l offer
    for index in (seq 2 (count $line))
        switch $line[$index]
            case --demo '--server=*' '--ppd=*'
                set -a offer $line[$index]
            case -h --server --ppd
                set -a offer $line[$index] $line[(math $index + 1)]
        end
    end
    timeout 2 $line[1] $offer --list-printers 2>/dev/null </dev/null
end

function __corvana_print_presets
    set -l line (commandline -opc)
    timeout 2 $line[1] --list-presets 2>/dev/null </dev/null
end

# The job attributes; the options of a printer stand in its PPD.
function __corvana_print_options
    for size in A4 A5 A3 Letter Legal
        echo media=$size
    end
    printf 'sides=%s\n' one-sided two-sided-long-edge two-sided-short-edge
    printf 'sides-by-hand=%s\n' long-edge short-edge no
    printf 'put-back=%s\n' face-down face-up
    printf 'number-up=%s\n' 1 2 4 6 9 16
    printf 'booklet=%s\n' left right no
    printf 'repeat=%s\n' 1 2 4 6 9 16
    printf 'number-up-layout=%s\n' btlr btrl lrbt lrtb rlbt rltb tblr tbrl
    printf 'page-border=%s\n' none single single-thick double double-thick
    printf 'page-set=%s\n' all even odd
    printf 'orientation-requested=%s\n' 3 4 5 6
    printf 'print-scaling=%s\n' auto auto-fit fill fit none
    printf 'position=%s\n' center top left right top-left top-right bottom bottom-left bottom-right
    printf 'outputorder=%s\n' normal reverse
    printf 'job-hold-until=%s\n' no-hold indefinite day-time evening night second-shift third-shift weekend
    printf 'multiple-document-handling=%s\n' separate-documents-collated-copies \
        separate-documents-uncollated-copies
    printf 'print-color-mode=%s\n' auto color monochrome
    for keyword in landscape fit-to-page mirror wrap prettyprint collate raw
        printf "$keyword=%s\n" true false
    end
    printf '%s=\n' copies page-ranges scaling natural-scaling ppi page-left page-right page-top \
        page-bottom cpi lpi columns job-priority job-sheets job-billing job-cancel-after \
        print-quality printer-resolution output-bin finishings media-source media-type media-col
end

complete -c corvana-print -s d -l printer -x -a '(__corvana_print_printers)' -d 'Print to this printer'
complete -c corvana-print -s h -l server -x -a '(__fish_print_hostnames)' -d 'Use the queues of this print server'
complete -c corvana-print -s E -d 'Speak to the print server with encryption only'
complete -c corvana-print -s U -x -a '(__fish_complete_users)' -d 'Print as this user'
complete -c corvana-print -l password-file -r -d 'Take the password from this file'
complete -c corvana-print -l password-fd -x -d 'Take the password from this descriptor'
complete -c corvana-print -l document-password-file -r -d 'Open protected documents with the password in this file'
complete -c corvana-print -l ppd -r -d 'Print for the printer of this PPD'
complete -c corvana-print -l output -r -d 'Write the data for the printer to this file'
complete -c corvana-print -l demo -d 'Offer the sample printers'
complete -c corvana-print -l list-printers -d 'List the printers and exit'
complete -c corvana-print -l preset -x -a '(__corvana_print_presets)' -d 'Start with the settings of this preset'
complete -c corvana-print -l list-presets -d 'List the presets and exit'
complete -c corvana-print -l save-preset -x -a '(__corvana_print_presets)' -d 'Keep the settings as this preset, and exit'
complete -c corvana-print -l save-instance -x -d 'Keep the settings as QUEUE/NAME for other programs'
complete -c corvana-print -l also-on -x -d 'With --save-instance, make it of these queues as well'
complete -c corvana-print -l check-policy -d 'Say what the policy decides'
complete -c corvana-print -l yes -d 'Print a job of many sheets without being asked'
complete -c corvana-print -s o -l option -x -a '(__corvana_print_options)' -d 'Set an option of the printer or of the job'
complete -c corvana-print -s n -l copies -x -d 'Print this many copies'
complete -c corvana-print -s P -x -d 'Print these pages'
complete -c corvana-print -s q -x -d 'Give the job this priority (1 to 100)'
complete -c corvana-print -s H -x -a 'hold immediate day-time evening night second-shift third-shift weekend' -d 'When to print'
complete -c corvana-print -s t -l title -x -d 'Name the job'
complete -c corvana-print -l no-dialog -d 'Print without a window'
complete -c corvana-print -l summary -d 'Write the settings of the job to standard output'
complete -c corvana-print -l on-alert -x -a 'print hold refuse' -d 'What to do when instructions are shown'
complete -c corvana-print -l wait -x -d 'Follow the job for this many seconds at most'
complete -c corvana-print -l no-wait -d 'End when the queue has the job'
complete -c corvana-print -l format -x -a 'json text' -d 'How to say what became of the job'
complete -c corvana-print -s s -d 'Do not say which job was printed'
complete -c corvana-print -s c -d 'Does nothing'
complete -c corvana-print -s m -d 'Is refused'
complete -c corvana-print -l bundle-root -x -a '(__fish_complete_directories)' -d 'Also trust the plug-in bundles in this folder'
complete -c corvana-print -l check-display -d 'Say whether a window can be shown'
complete -c corvana-print -l help -d 'Show a list of the options'
complete -c corvana-print -l version -d 'Show the version'
