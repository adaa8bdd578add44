# SPDX-License-Identifier: Apache-2.0
# Completion of lumen-deskctl for fish.

set -l commands monitors select get set call watch describe events idle sync apply settings snapshot fireUpdate model \
    stats actions trigger flowActions queue forgetFirstConnection version package report log quit sim services clock ui raw

function __lumen_deskctl_monitors
    lumen-deskctl --timeout 500 --json monitors 2>/dev/null | string match -rga '"id":"([^"]*)"'
end

function __lumen_deskctl_paths
    set -l front (string match -rg '^(.*)\.[^.]*$' -- (commandline -ct))
    for name in (lumen-deskctl --timeout 500 --json describe $front 2>/dev/null |
            string replace -r '"signals":.*' '' | string match -rga '"name":"([^"]*)"')
        string join . $front $name
    end
end

complete -c lumen-deskctl -f
complete -c lumen-deskctl -s m -l monitor -x -a '(__lumen_deskctl_monitors)' -d 'Monitor that is meant'
complete -c lumen-deskctl -l json -d 'Print results as JSON'
complete -c lumen-deskctl -l control -r -F -d 'Socket of the running program'
complete -c lumen-deskctl -l timeout -x -d 'Milliseconds to wait for an answer'
complete -c lumen-deskctl -s h -l help -d 'Show help'
complete -c lumen-deskctl -s v -l version -d 'Show the version'

complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a monitors -d 'List the monitors'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a select -d 'Make a monitor the current one'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a get -d 'Print a property'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a set -d 'Set a property'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a call -d 'Call an operation'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a watch -d 'Print changes until interrupted'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a describe -d 'List properties and operations'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a events -d 'List usage events'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a sync -d 'Read the monitor back'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a settings -d 'List, set or remove settings'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a "idle apply snapshot fireUpdate model stats \
    actions trigger flowActions queue forgetFirstConnection version package report log quit"
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a sim -d 'Simulated monitors'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a services -d 'The simulated session'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a clock -d 'The clock of the program'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a ui -d 'The windows'
complete -c lumen-deskctl -n "not __fish_seen_subcommand_from $commands" -a raw -d 'Call any method of the protocol'

complete -c lumen-deskctl -n '__fish_seen_subcommand_from get set call watch describe' -a '(__lumen_deskctl_paths)'
complete -c lumen-deskctl -n '__fish_seen_subcommand_from select' -a '(__lumen_deskctl_monitors)'
complete -c lumen-deskctl -n '__fish_seen_subcommand_from settings' -a 'set remove'
complete -c lumen-deskctl -n '__fish_seen_subcommand_from flowActions' -a 'list register unregister'
complete -c lumen-deskctl -n '__fish_seen_subcommand_from sim' \
    -a 'get set traffic fault plug unplug overlay reset nack null checksum garbage timeout'
complete -c lumen-deskctl -n '__fish_seen_subcommand_from services' -a 'get set emit'
complete -c lumen-deskctl -n '__fish_seen_subcommand_from clock' -a 'get set advance'
complete -c lumen-deskctl -n '__fish_seen_subcommand_from ui' \
    -a 'widgets show hide open close tree windows mouse press setValue key screenshot warnings'
