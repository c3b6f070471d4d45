# SPDX-License-Identifier: MIT
# Running the program never needs root. Sourced by ./run.

# ordinary_user  The name of the user behind sudo, else the first ordinary user of this machine;
# nothing where there is none.
ordinary_user() {
    if [ -n "${SUDO_USER:-}" ] && [ "$SUDO_USER" != root ]; then
        echo "$SUDO_USER"
    else
        getent passwd | awk -F: '$3 >= 1000 && $3 < 60000 && $7 !~ /(nologin|false)$/ {print $1; exit}'
    fi
}

# start_as_ordinary_user PROGRAM  Starts it; root is told so and offered the ordinary user.
start_as_ordinary_user() {
    local program=$1 user answer=n
    if [ "$(id -u)" -eq 0 ]; then
        echo "You are root, and the program never needs root."
        user=$(ordinary_user)
        if [ -n "$user" ] && runuser -u "$user" -- test -x "$program"; then
            if [ -t 0 ]; then
                read -r -p "Start it as $user? [Y/n] " answer
            else
                echo "To start it as an ordinary user: runuser -u $user -- $program"
            fi
            case $answer in
                [nN]*) ;;
                *)
                    echo "Starting $program as $user"
                    exec runuser -u "$user" -- "$program"
                    ;;
            esac
        elif [ -n "$user" ]; then
            echo "It is started as root all the same: $user cannot read the folder of $program."
        fi
    fi
    echo "Starting $program"
    exec "$program"
}
