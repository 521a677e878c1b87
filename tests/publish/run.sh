#!/bin/bash
# Publishes a form with tarnquill-cli to real servers on 127.0.0.1 and checks
# what lands there: OpenSSH's sshd (SFTP, a test user with a password and a
# key), vsftpd with explicit TLS and a certificate made here, a plain FTP
# server (pyftpdlib, which can also cut a connection half way), php -S serving the uploaded folders, and a server that sends
# PHP scripts as text. Servers start once and are stopped by PID.
# usage: tests/publish/run.sh BUILD_DIR        exits non-zero on the first failure
set -eu
ROOT="$(cd "$(dirname "$0")/../.." && pwd)"
BUILD="$(cd "${1:-$ROOT/build}" && pwd)"
CLI="$BUILD/bin/tarnquill-cli"
PY=/usr/bin/python3
USER_NAME=tqpublish
SECRET=publish-secret-1
BASE=$((20000 + $$ % 20000))
SSH_PORT=$BASE; FTP_PORT=$((BASE + 1)); FTPS_PORT=$((BASE + 2)); PHP_PORT=$((BASE + 3)); TEXT_PORT=$((BASE + 4))

W="$(mktemp -d /tmp/tq-publish.XXXXXX)"
chmod 755 "$W"
PIDS=""
cleanup() {
    for p in $PIDS; do kill "$p" 2>/dev/null || true; done
    rm -rf "$W"
}
trap cleanup EXIT INT TERM
fail() { echo "FAIL: $*" >&2; [ -f "$W/out" ] && sed 's/^/  | /' "$W/out" "$W/err" >&2; exit 1; }
pass() { echo "ok - $*"; }
wait_port() {
    i=0
    while ! (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null; do
        i=$((i + 1)); [ $i -lt 100 ] || fail "nothing listens on port $1"; sleep 0.1
    done
}

# --- the servers
mkdir -p "$W/www/sftp" "$W/www/ftps" "$W/www/ftp" "$W/ssh" "$W/data" "$W/local" "$W/home" "$W/vsftpd-empty"
id "$USER_NAME" >/dev/null 2>&1 || useradd -M -d "$W/home" -s /bin/sh "$USER_NAME"
usermod -d "$W/home" "$USER_NAME"
echo "$USER_NAME:$SECRET" | chpasswd
chown "$USER_NAME" "$W/www/sftp" "$W/www/ftps"
ssh-keygen -q -t ed25519 -N "" -f "$W/ssh/host_key"
ssh-keygen -q -t ed25519 -N "" -f "$W/ssh/other_host_key"
ssh-keygen -q -t ed25519 -N "" -f "$W/ssh/user_key"
cp "$W/ssh/user_key.pub" "$W/ssh/authorized_keys"
chmod 644 "$W/ssh/authorized_keys"
mkdir -p /run/sshd
cat >"$W/ssh/sshd_config" <<CONF
Port $SSH_PORT
ListenAddress 127.0.0.1
HostKey $W/ssh/host_key
PidFile $W/ssh/sshd.pid
AuthorizedKeysFile $W/ssh/authorized_keys
StrictModes no
PasswordAuthentication yes
KbdInteractiveAuthentication no
UsePAM no
AllowUsers $USER_NAME
Subsystem sftp internal-sftp
CONF
/usr/sbin/sshd -D -e -f "$W/ssh/sshd_config" 2>"$W/sshd.log" &
PIDS="$PIDS $!"

openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj "/CN=127.0.0.1" -addext "subjectAltName=IP:127.0.0.1" \
    -keyout "$W/ftp_key.pem" -out "$W/ftp_cert.pem" 2>/dev/null
cat >"$W/vsftpd.conf" <<CONF
listen=YES
listen_address=127.0.0.1
listen_port=$FTPS_PORT
background=NO
anonymous_enable=NO
local_enable=YES
write_enable=YES
local_umask=022
local_root=$W/www/ftps
ssl_enable=YES
rsa_cert_file=$W/ftp_cert.pem
rsa_private_key_file=$W/ftp_key.pem
force_local_logins_ssl=YES
force_local_data_ssl=YES
require_ssl_reuse=NO
seccomp_sandbox=NO
secure_chroot_dir=$W/vsftpd-empty
pam_service_name=vsftpd
userlist_enable=NO
CONF
/usr/sbin/vsftpd "$W/vsftpd.conf" >"$W/vsftpd.log" 2>&1 &
PIDS="$PIDS $!"
$PY "$ROOT/tests/publish/ftp_server.py" "$FTP_PORT" "$W/www/ftp" plainuser "$SECRET" "$W/cut-next" \
    >"$W/ftp.log" 2>&1 &
PIDS="$PIDS $!"
php -S "127.0.0.1:$PHP_PORT" -t "$W/www" >"$W/php.log" 2>&1 &
PIDS="$PIDS $!"
# a host without PHP: every file, scripts too, goes out as it is
$PY -m http.server "$TEXT_PORT" --bind 127.0.0.1 --directory "$W/www" >"$W/text.log" 2>&1 &
PIDS="$PIDS $!"
for p in $SSH_PORT $FTP_PORT $FTPS_PORT $PHP_PORT $TEXT_PORT; do wait_port "$p"; done

# --- the project: the e2e form, once as it is and once with a blank and non-ASCII letters in its file names
PROJECT="$ROOT/tests/e2e/fixtures/e2e_form.fms"
ODD="$W/odd form.fms"
sed 's/\[TQL Output File=formtql.htm\]/[TQL Output File=mein formular é.htm]/' "$PROJECT" >"$ODD"
grep -q "mein formular é" "$ODD" || fail "the odd project was not made"

cli() { "$CLI" "$@" --data-folder "$W/data" >"$W/out" 2>"$W/err"; }
cli_stdin() { input="$1"; shift; printf '%s\n' "$input" | "$CLI" "$@" --data-folder "$W/data" >"$W/out" 2>"$W/err"; }
has() { grep -qF -- "$2" "$W/$1" || fail "$3: '$2' not in $1"; }
publish() {
    project="$1" site="$2"; shift 2
    cli_stdin "$SECRET" publish "$project" --site "$site" --web-folder "$W/local" --password-stdin "$@"
}

SFTP_URL="http://127.0.0.1:$PHP_PORT/sftp/"
HOSTKEY_FP="$(ssh-keygen -lf "$W/ssh/host_key.pub" | cut -d' ' -f2)"

# --- SFTP: an unknown host key is refused and shown, then trusted with --trust
cli site 1 --protocol sftp --host 127.0.0.1 --port "$SSH_PORT" --user "$USER_NAME" \
    --remote-dir "$W/www/sftp" --url "$SFTP_URL" || fail "site 1"
if publish "$PROJECT" 1; then fail "publish to an unknown host key succeeded"; fi
has err "UNKNOWN HOST KEY" "unknown key"; has err "$HOSTKEY_FP" "unknown key fingerprint"
[ -z "$(ls -A "$W/www/sftp")" ] || fail "files went to a server whose key nobody trusted"
pass "an unknown host key is shown with its fingerprint and refused"

cli_stdin "$SECRET" site 1 --protocol sftp --host 127.0.0.1 --port "$SSH_PORT" --user "$USER_NAME" \
    --remote-dir "$W/www/sftp" --url "$SFTP_URL" --password-stdin --trust || fail "site 1 --trust"
has out "trusted $HOSTKEY_FP" "trust prints the fingerprint"
pass "site --trust keeps the host key and prints its fingerprint"

# --- first publish, then one with nothing changed, then one with a changed file
start=$(date +%s%N)
publish "$PROJECT" 1 || fail "first SFTP publish"
end=$(date +%s%N)
has out "sent formtql.htm" "first publish"; has out "sent formtql.php" "first publish"
has out "runs ${SFTP_URL}formtql.php" "check"; has out "published and checked" "check"
cmp -s "$W/local/formtql.php" "$W/www/sftp/formtql.php" || fail "the script on the server differs"
[ -z "$(find "$W/www/sftp" -name '*.part')" ] || fail "a temporary file stayed on the server"
echo "   first publish (build, 2 files, check): $(( (end - start) / 1000000 )) ms"

start=$(date +%s%N)
publish "$PROJECT" 1 || fail "second SFTP publish"
end=$(date +%s%N)
has out "unchanged formtql.htm" "second publish"; has out "unchanged formtql.php" "second publish"
if grep -q "^sent" "$W/out"; then fail "a publish with nothing changed sent a file"; fi
echo "   second publish, nothing changed: $(( (end - start) / 1000000 )) ms"
pass "a second publish with nothing changed sends no file"

sed 's/\[FROM=Tarnquill Test\]/[FROM=Tarnquill Test Changed]/' "$PROJECT" >"$W/changed.fms"
publish "$W/changed.fms" 1 || fail "publish after a change"
has out "sent formtql.php" "changed"; has out "unchanged formtql.htm" "changed"
publish "$W/changed.fms" 1 --all || fail "--all"
has out "sent formtql.htm" "--all"
pass "only the changed file goes up; --all sends everything"

# --- the old file steps aside only while the new one takes its name; one left
#     aside by a broken publish does not stand in the way of the next
echo "left by a broken publish" >"$W/www/sftp/.formtql.php.part.old"
chown "$USER_NAME" "$W/www/sftp/.formtql.php.part.old"
publish "$W/changed.fms" 1 --all || fail "publish past a file left aside"
cmp -s "$W/local/formtql.php" "$W/www/sftp/formtql.php" || fail "the script on the server differs after a file left aside"
[ -z "$(find "$W/www/sftp" -name '*.old' -o -name '*.part')" ] || fail "a file set aside or a temporary file stayed"
pass "an old file set aside is gone once the new one stands; one left by a broken publish is cleared"

# --- a key instead of a password; odd file names
cli site 2 --protocol sftp --host 127.0.0.1 --port "$SSH_PORT" --user "$USER_NAME" --key "$W/ssh/user_key" \
    --remote-dir "$W/www/sftp" --url "$SFTP_URL" || fail "site 2"
cli publish "$ODD" --site 2 --web-folder "$W/local" || fail "publish with a key"
has out "sent mein formular é.htm" "odd names"
cmp -s "$W/local/mein formular é.php" "$W/www/sftp/mein formular é.php" || fail "the odd script differs"
has out "runs ${SFTP_URL}mein%20formular%20%C3%A9.php" "odd names checked"
pass "a key logs in; a file name with a blank and non-ASCII letters goes up and is checked"

# --- the same from the desktop program's Publish button, timed (a key, the host key known: no question)
GUI_TEST="$BUILD/bin/gui_publish_test"
if [ -x "$GUI_TEST" ] && command -v xvfb-run >/dev/null 2>&1; then
    mkdir -p "$W/www/sftp-gui"
    chown "$USER_NAME" "$W/www/sftp-gui"
    if ! TQ_SFTP_TARGET="$SSH_PORT|$USER_NAME|$W/ssh/user_key|$W/www/sftp-gui|http://127.0.0.1:$PHP_PORT/sftp-gui/|$W/data/known_hosts" \
        QTWEBENGINE_DISABLE_SANDBOX=1 xvfb-run -a -s "-screen 0 1920x1080x24" "$GUI_TEST" timedPublishToSftp \
        -platform xcb >"$W/gui.log" 2>&1; then
        cat "$W/gui.log" >&2
        fail "the desktop program's publish to SFTP"
    fi
    grep "button to published and checked" "$W/gui.log" | sed 's/^QINFO *: [^)]*) /   /'
    pass "the desktop program publishes to SFTP and checks it; a second publish sends no file"
fi

# --- wrong password, missing folder
if cli_stdin wrong-password publish "$W/changed.fms" --site 1 --web-folder "$W/local" --password-stdin --all; then
    fail "a wrong password published"
fi
has err "LOGIN FAILED" "wrong password"
cli site 3 --protocol sftp --host 127.0.0.1 --port "$SSH_PORT" --user "$USER_NAME" --key "$W/ssh/user_key" \
    --remote-dir "$W/www/missing" --url "$SFTP_URL" || fail "site 3"
if cli publish "$PROJECT" --site 3 --web-folder "$W/local"; then fail "publish into a missing folder"; fi
has err "NO REMOTE FOLDER" "missing folder"; has err "$W/www/missing" "missing folder named"
pass "a wrong password and a missing remote folder are refused with the reason"

# --- a changed host key is refused
cp "$W/data/known_hosts" "$W/known_hosts.good"
sed "s|ssh-ed25519 [^ ]*|$(cut -d' ' -f1,2 "$W/ssh/other_host_key.pub")|" "$W/known_hosts.good" >"$W/data/known_hosts"
if publish "$W/changed.fms" 1 --all; then fail "publish to a changed host key"; fi
has err "HOST KEY CHANGED" "changed key"; has err "$HOSTKEY_FP" "changed key fingerprint"
cp "$W/known_hosts.good" "$W/data/known_hosts"
pass "a changed host key is refused"

# --- FTP with TLS: a self-signed certificate is refused until trusted
CERT_FP="SHA256 $(openssl x509 -in "$W/ftp_cert.pem" -noout -fingerprint -sha256 | cut -d= -f2)"
FTPS_URL="http://127.0.0.1:$PHP_PORT/ftps/"
cli site 4 --protocol ftps --host 127.0.0.1 --port "$FTPS_PORT" --user "$USER_NAME" --remote-dir "$W/www/ftps" \
    --url "$FTPS_URL" || fail "site 4"
if publish "$PROJECT" 4; then fail "publish to an untrusted certificate"; fi
has err "UNTRUSTED CERTIFICATE" "untrusted"; has err "$CERT_FP" "certificate fingerprint"
[ -z "$(ls -A "$W/www/ftps")" ] || fail "files went to a server whose certificate nobody trusted"
cli_stdin "$SECRET" site 4 --protocol ftps --host 127.0.0.1 --port "$FTPS_PORT" --user "$USER_NAME" \
    --remote-dir "$W/www/ftps" --url "$FTPS_URL" --password-stdin --trust || fail "site 4 --trust"
has out "trusted $CERT_FP" "certificate trusted"
publish "$PROJECT" 4 || fail "FTPS publish"
has out "published and checked" "FTPS"
cmp -s "$W/local/formtql.php" "$W/www/ftps/formtql.php" || fail "the FTPS script differs"
pass "FTP with TLS: an untrusted certificate is refused, then trusted and published"

# --- a file the page links below its own folder goes to the same place below the remote folder
BG="$W/background.fms"
sed 's|\[Background image path=;https://www.tarnquill.example/test/cloudark.gif\]|[Background image path=images/back ground.jpg]|' \
    "$PROJECT" >"$BG"
grep -q "images/back ground.jpg" "$BG" || fail "the background project was not made"
mkdir -p "$W/local/images"
head -c 100000 /dev/urandom >"$W/local/images/back ground.jpg"
publish "$BG" 1 || fail "SFTP publish with a background"
has out "sent images/back ground.jpg" "background"
cmp -s "$W/local/images/back ground.jpg" "$W/www/sftp/images/back ground.jpg" || fail "the SFTP background is misplaced"
publish "$BG" 4 || fail "FTPS publish with a background"
cmp -s "$W/local/images/back ground.jpg" "$W/www/ftps/images/back ground.jpg" || fail "the FTPS background is misplaced"
[ -z "$(find "$W/www" -name '*.part')" ] || fail "a temporary file stayed on a server"
pass "a file the page links below its folder goes to the same place below the remote folder (SFTP, FTPS)"

# --- SFTP: a connection cut half way through a file (a relay that breaks it) leaves the old file whole
CUT_PORT=$((BASE + 5)); FTPS_SLOW_PORT=$((BASE + 6))
$PY "$ROOT/tests/publish/cut_proxy.py" "$CUT_PORT" "$SSH_PORT" "$W/cut-sftp" \
    "$W/www/sftp/images/.back ground.jpg.part" 30000 >"$W/relay.log" 2>&1 &
PIDS="$PIDS $!"
wait_port "$CUT_PORT"
cli_stdin "$SECRET" site 7 --protocol sftp --host 127.0.0.1 --port "$CUT_PORT" --user "$USER_NAME" \
    --remote-dir "$W/www/sftp" --url "$SFTP_URL" --password-stdin --trust || fail "site 7"
cp "$W/www/sftp/images/back ground.jpg" "$W/old-sftp.jpg"
head -c 100000 /dev/urandom >"$W/local/images/back ground.jpg"
touch "$W/cut-sftp"
if publish "$BG" 7; then fail "a cut SFTP connection published"; fi
[ ! -e "$W/cut-sftp" ] || fail "the relay did not cut the SFTP connection"
has err "images/back ground.jpg was not published" "SFTP cut"
cmp -s "$W/old-sftp.jpg" "$W/www/sftp/images/back ground.jpg" || fail "the SFTP file changed after a cut"
publish "$BG" 7 || fail "SFTP publish after the cut"
cmp -s "$W/local/images/back ground.jpg" "$W/www/sftp/images/back ground.jpg" || fail "the SFTP file after the cut differs"
pass "SFTP: a connection cut half way through a file leaves the old file whole; the next publish sends it"

# --- FTP with TLS: the server's session ends half way through a file (a slow server, its session killed)
sed "s/^listen_port=.*/listen_port=$FTPS_SLOW_PORT/" "$W/vsftpd.conf" >"$W/vsftpd-slow.conf"
echo "local_max_rate=20000" >>"$W/vsftpd-slow.conf"
/usr/sbin/vsftpd "$W/vsftpd-slow.conf" >"$W/vsftpd-slow.log" 2>&1 &
SLOW_PID=$!
PIDS="$PIDS $SLOW_PID"
wait_port "$FTPS_SLOW_PORT"
end_sessions() { for c in $(ps -o pid= --ppid "$1"); do end_sessions "$c"; kill -9 "$c" 2>/dev/null || true; done; }
cli_stdin "$SECRET" site 8 --protocol ftps --host 127.0.0.1 --port "$FTPS_SLOW_PORT" --user "$USER_NAME" \
    --remote-dir "$W/www/ftps" --url "$FTPS_URL" --password-stdin --trust || fail "site 8"
publish "$BG" 4 || fail "FTPS publish before the cut"
cp "$W/www/ftps/images/back ground.jpg" "$W/old-ftps.jpg"
head -c 100000 /dev/urandom >"$W/local/images/back ground.jpg"
rm -f "$W/cut-rc"
( if publish "$BG" 8; then echo 0 >"$W/cut-rc"; else echo 1 >"$W/cut-rc"; fi ) &
CUT_JOB=$!
PART="$W/www/ftps/images/.back ground.jpg.part"
i=0
while [ "$(stat -c %s "$PART" 2>/dev/null || echo 0)" -eq 0 ]; do
    i=$((i + 1)); [ $i -lt 600 ] || fail "the slow FTPS upload did not start"; sleep 0.02
done
got=$(stat -c %s "$PART")
ps -o pid=,ppid=,user=,args= --ppid "$SLOW_PID" >"$W/sessions"; end_sessions "$SLOW_PID"
wait "$CUT_JOB" || true
[ "$got" -lt 100000 ] || fail "the FTPS file was whole before the cut ($got bytes)"
[ "$(cat "$W/cut-rc")" = 1 ] || { cat "$W/sessions" >&2; fail "a cut FTPS connection published (cut at $got bytes)"; }
has err "images/back ground.jpg was not published" "FTPS cut"
cmp -s "$W/old-ftps.jpg" "$W/www/ftps/images/back ground.jpg" || fail "the FTPS file changed after a cut"
publish "$BG" 4 || fail "FTPS publish after the cut"
cmp -s "$W/local/images/back ground.jpg" "$W/www/ftps/images/back ground.jpg" || fail "the FTPS file after the cut differs"
echo "   FTPS cut after $got of 100000 bytes"
pass "FTP with TLS: a connection cut half way through a file leaves the old file whole; the next publish sends it"

# --- plain FTP, with its warning; a connection cut half way through a file leaves the old file whole
cli site 5 --protocol ftp --host 127.0.0.1 --port "$FTP_PORT" --user plainuser --remote-dir / \
    --url "http://127.0.0.1:$PHP_PORT/ftp/" || fail "site 5"
publish "$PROJECT" 5 || fail "plain FTP publish"
has err "PLAIN FTP" "plain ftp warning"; has out "published and checked" "plain FTP"
cp "$W/www/ftp/formtql.php" "$W/old.php"
touch "$W/cut-next"
if publish "$W/changed.fms" 5; then fail "a cut connection published"; fi
has err "formtql.php was not published" "cut"
[ ! -e "$W/cut-next" ] || fail "the server did not cut the connection"
cmp -s "$W/old.php" "$W/www/ftp/formtql.php" || fail "the script on the server changed after a cut"
publish "$W/changed.fms" 5 || fail "publish after the cut"
cmp -s "$W/local/formtql.php" "$W/www/ftp/formtql.php" || fail "the script after the cut differs"
pass "plain FTP warns; a connection cut half way leaves the old file whole, the next publish sends it"

# --- a host that sends the script as text is told at once
cli site 6 --protocol ftp --host 127.0.0.1 --port "$FTP_PORT" --user plainuser --remote-dir / \
    --url "http://127.0.0.1:$TEXT_PORT/ftp/" || fail "site 6"
if publish "$PROJECT" 6; then fail "a host without PHP passed the check"; fi
has err "PHP NOT RUNNING" "source shown"; has err "e-mail addresses of its recipients" "source shown words"
pass "a host that sends the script as text is told at once"
echo "all publishing tests passed"
