
_ostrel_ofrecer() { # WORDS
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$actual" | sort -u)
}

_ostrel_valor_de() { # KIND, as the help calls a value
    case $1 in
    FICHERO* | SALIDA) compopt -o default ;;
    DIR | CARPETA) compopt -o dirnames ;;
    IMPRESORA) _ostrel_ofrecer "$(lpstat -e 2>/dev/null)" ;;
    MM) _ostrel_ofrecer "1 2 3 4 5 6 7 8 9 10 11 12" ;;
    'MM|ANUAL') _ostrel_ofrecer "1 2 3 4 5 6 7 8 9 10 11 12 ANUAL" ;;
    *'|'* | *[[:lower:]]*) _ostrel_ofrecer "${1//[|,]/ }" ;;
    esac
}

_ostrel() {
    local actual=${COMP_WORDS[COMP_CWORD]} dadas=" " espera="" dichas="" orden="" sobran=0 i
    COMPREPLY=()
    [[ $actual != = ]] || actual=""
    for ((i = 1; i < COMP_CWORD; i++)); do
        local palabra=${COMP_WORDS[i]}
        if [[ $palabra == = ]]; then # bash takes --option=value apart
            continue
        elif [[ -n $espera ]]; then
            espera=""
        elif [[ $palabra == -* ]]; then
            dadas+="$palabra "
            espera=${_ostrel_valor["$orden $palabra"]-${_ostrel_valor[" $palabra"]-}}
        else
            dichas+="${dichas:+ }$palabra"
            sobran=$((sobran + 1))
            if [[ -n ${_ostrel_opciones[$dichas]+x} ]]; then
                orden=$dichas
                sobran=0
            fi
        fi
    done
    if [[ -n $espera ]]; then
        _ostrel_valor_de "$espera"
        return
    fi
    local argumento=${_ostrel_argumento[${orden:-.}]-}
    if [[ -n $argumento && $sobran -eq 0 && $actual != -* ]]; then
        argumento=${argumento#\[}
        _ostrel_valor_de "${argumento%]}"
        return
    fi

    local ofrecidas="" otra opcion
    for otra in "${!_ostrel_opciones[@]}"; do
        if [[ -z $dichas ]]; then
            ofrecidas+=" ${otra%% *}"
        elif [[ $otra == "$dichas "* ]]; then
            otra=${otra#"$dichas "}
            ofrecidas+=" ${otra%% *}"
        fi
    done
    for opcion in ${_ostrel_opciones[${orden:-.}]-} $_ostrel_comunes; do
        if [[ $opcion == *+ || $dadas != *" $opcion "* ]]; then
            ofrecidas+=" ${opcion%+}"
        fi
    done
    _ostrel_ofrecer "$ofrecidas"
}

complete -F _ostrel ostrel
