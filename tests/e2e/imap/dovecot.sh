#!/bin/sh
# A throw-away Dovecot on 127.0.0.1 for the results tests: one user, its mail
# in a Maildir under a scratch folder, plain-text login (loopback only).
#   dovecot.sh start DIR PORT USER PASSWORD   starts it, writes DIR/dovecot.pid
#   dovecot.sh stop DIR                        stops it by that PID
set -eu
cmd="$1"
dir="$2"
if [ "$cmd" = stop ]; then
    if [ -f "$dir/run/master.pid" ]; then
        kill "$(cat "$dir/run/master.pid")" 2>/dev/null || true
        for _ in 1 2 3 4 5 6 7 8 9 10; do
            [ -f "$dir/run/master.pid" ] || break
            sleep 0.2
        done
    fi
    exit 0
fi
port="$3"
user="$4"
password="$5"
mkdir -p "$dir/run" "$dir/state" "$dir/home"
# Dovecot never keeps mail as root: as root the mail belongs to its own user
mailuid="$(id -u)"
mailgid="$(id -g)"
if [ "$mailuid" = 0 ]; then
    mailuid="$(id -u dovecot)"
    mailgid="$(id -g dovecot)"
    chown "$mailuid:$mailgid" "$dir/home"
fi
# the login and internal processes run as Dovecot's own users and must reach the run folder
chmod 755 "$dir" "$dir/run"
printf '%s:{PLAIN}%s\n' "$user" "$password" > "$dir/passwd"
cat > "$dir/dovecot.conf" <<CONF
base_dir = $dir/run
state_dir = $dir/state
log_path = $dir/dovecot.log
protocols = imap
listen = 127.0.0.1
ssl = no
disable_plaintext_auth = no
first_valid_uid = $mailuid
auth_mechanisms = plain login
mail_location = maildir:~/Maildir
passdb {
  driver = passwd-file
  args = scheme=PLAIN username_format=%u $dir/passwd
}
userdb {
  driver = static
  args = uid=$mailuid gid=$mailgid home=$dir/home/%u
}
service imap-login {
  inet_listener imap {
    address = 127.0.0.1
    port = $port
  }
  inet_listener imaps {
    port = 0
  }
}
service submission-login {
  inet_listener submission {
    port = 0
  }
}
service pop3-login {
  inet_listener pop3 {
    port = 0
  }
}
service lmtp {
  unix_listener lmtp {
    mode = 0600
  }
}
CONF
# its own log holds what it says; open pipes would keep a caller waiting for the daemon
dovecot -c "$dir/dovecot.conf" </dev/null >/dev/null 2>&1
for _ in $(seq 1 50); do
    [ -f "$dir/run/master.pid" ] && break
    sleep 0.1
done
cp "$dir/run/master.pid" "$dir/dovecot.pid"
