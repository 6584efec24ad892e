#!/usr/bin/env bash
# ssh_test.sh KIRTO_CLI KIRTO_SAMPLE SHRINK: the jobs of many files on two machines, each an SSH server
# of its own with a home folder of its own, on this machine's loopback address. One machine goes away
# meanwhile: the other one does what is left.
set -euo pipefail

cli=$1
sample=$2
shrink=$3
readonly files=16 machines=(1 2)
work=$(mktemp -d)
readonly cli sample shrink work
declare -A servers

stop() {
    kill "${servers[$1]}" 2>/dev/null || true
    unset "servers[$1]"
}

finish() {
    local machine
    for machine in "${!servers[@]}"; do
        stop "$machine"
    done
    rm -rf "$work"
}
trap finish EXIT

fail() {
    printf 'ssh: %s\n' "$*" >&2
    cat "$work"/{parallel,server*,client*}.log >&2
    exit 1
}

# A machine: a user whose home is a folder here, and who has kirto-cli in the path.
prepare_machine() {
    local home=$work/machine$1
    mkdir -p "$home/.ssh"
    chmod 700 "$home" "$home/.ssh"
    cp "$work/key.pub" "$home/.ssh/authorized_keys"
    printf 'worker:x:%s:%s::%s:/bin/sh\n' "$(id -u)" "$(id -g)" "$home" >"$home/passwd"
    printf 'worker:x:%s:\n' "$(id -g)" >"$home/group"
    cat >"$home/session" <<SESSION
#!/bin/sh
PATH=$work/bin:\$PATH KIRTO_THREADS=1
export PATH KIRTO_THREADS
echo "\$\$" >>"$work/used$1"
exec sh -c "\$SSH_ORIGINAL_COMMAND"
SESSION
    chmod +x "$home/session"
    dropbearkey -t ed25519 -f "$home/host_key" >/dev/null 2>&1
}

# Starts it at a port that nobody has, and says so to ssh.
start_machine() {
    local home=$work/machine$1 port
    for port in $(shuf -i 20000-30000 -n 20); do
        LD_PRELOAD=libnss_wrapper.so NSS_WRAPPER_PASSWD=$home/passwd NSS_WRAPPER_GROUP=$home/group \
            dropbear -F -E -s -j -k -r "$home/host_key" -P "$home/pid" -c "$home/session" \
            -p "127.0.0.1:$port" 2>"$work/server$1.log" &
        servers[$1]=$!
        cat >>"$work/config" <<CONFIG
Host machine$1
    HostName 127.0.0.1
    Port $port
CONFIG
        until ssh -F "$work/config" "machine$1" true 2>"$work/client$1.log"; do
            kill -0 "${servers[$1]}" 2>/dev/null || continue 2
        done
        return
    done
    fail "machine $1 has no port"
}

# on_machines ARGUMENT...: GNU parallel on both, by the configuration made here.
on_machines() {
    find in -name '*.gif' | sort |
        parallel --will-cite --ssh "ssh -F $work/config" --sshloginfile machines --joblog jobs.log \
            "$@" >/dev/null 2>parallel.log
}

expect_all() {
    local i
    for ((i = 0; i < files; ++i)); do
        cmp -s "out/$i.gif" expected.gif || fail "$1: out/$i.gif is missing or not whole"
    done
}

cd "$work"
mkdir bin in out home
export HOME=$work/home
cp "$cli" bin/kirto-cli
cp "$shrink" shrink.sh
cat >config <<CONFIG
Host *
    User worker
    IdentityFile $work/key
    IdentitiesOnly yes
    StrictHostKeyChecking no
    UserKnownHostsFile /dev/null
    LogLevel ERROR
    ConnectTimeout 5
CONFIG
ssh-keygen -q -t ed25519 -N '' -f key
for machine in "${machines[@]}"; do
    prepare_machine "$machine"
    start_machine "$machine"
    printf '2/machine%s\n' "$machine" >>machines
done
"$sample" first.gif
bin/kirto-cli --quiet --open first.gif --select 0-2 --save small.gif
bin/kirto-cli --quiet --open small.gif --resize 50% --save expected.gif
for ((i = 0; i < files; ++i)); do
    cp small.gif "in/$i.gif"
done

# A folder that all of them see.
for machine in "${machines[@]}"; do
    rm "used$machine"
done
on_machines --workdir . ./shrink.sh || fail "the jobs in a common folder have failed"
expect_all "in a common folder"
for machine in "${machines[@]}"; do
    [[ -s used$machine ]] || fail "machine $machine had nothing to do"
done

# Each has a folder of its own.
rm -r out
mkdir out
on_machines --basefile shrink.sh --transfer --return 'out/{/}' --cleanup 'mkdir -p out && ./shrink.sh {}' ||
    fail "the jobs with files carried there and back have failed"
expect_all "carried there and back"
[[ -z $(find machine1 machine2 -name '*.gif') ]] || fail "files were left on the machines"

# One goes away.
rm out/*
stop 2
on_machines --workdir . --retries 3 ./shrink.sh || fail "the machine that was left did not do it all"
expect_all "on the machine that was left"
printf '%s files on two machines, in a common folder and in their own, and on one of them\n' "$files"
