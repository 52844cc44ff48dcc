#!/usr/bin/env bash
# Runs inside the bare system on a company where all is well: makes one fault after the other and looks whether the user
# maria is told by `zarim --check`, with its line and what to do, and that the password never stands there.
#   prove_faults.sh MAILSERVER    the number of the mail server's process, which is ended
set -euo pipefail

config=/etc/zarim/drive_c/zarim/config
check() { runuser -u maria -- env HOME=/home/maria zarim --check PRD; }
line=$(cat "$config/server.ini")
again() { printf '%s\n' "$line" >"$config/server.ini"; chmod 640 "$config/server.ini"; }

# fault WORDS MAKE MEND: the words must stand in a line with something to do.
fault() {
  eval "$2"
  if check >/root/checked; then printf 'All is well in spite of: %s\n' "$2" >&2; exit 1; fi
  grep '^\[FALTA\]' /root/checked | grep -qF "$1" || { cat /root/checked >&2; printf 'Not named: %s\n' "$1" >&2; exit 1; }
  ! grep -q Segredo1 /root/checked || { printf 'The password is shown: %s\n' "$2" >&2; exit 1; }
  eval "$3"
}
ini() { printf "$1" >"$config/server.ini"; }

fault 'depois da terceira' 'printf "b\nc\n\n\n" >>$config/server.ini' again
fault 'parece um comentário' 'ini "# produção\n$line\n"' again
fault 'está em UTF-16' 'printf "%s" "$line" | iconv -t UTF-16 >$config/server.ini' again
fault 'faltam campos' 'ini "${line%%^False^*}"' again
fault 'True ou False' 'ini "${line/Segredo1/Seg^redo}"' again
fault 'recusa usuário ou senha' 'ini "${line/Segredo1/outra}\n"' again
fault 'o banco não existe' 'ini "${line/^zarim^/^outro^}\n"' again
fault 'nada responde' 'ini "${line/port=*^zarim/port=1^zarim}\n"' again
fault 'a rede não conhece' 'ini "${line/127.0.0.1/nao.existe.invalid}\n"' again
fault 'qualquer usuário da máquina' 'chmod o+r $config/server.ini' again
fault 'Permissão negada' 'chmod 600 $config/server.ini' again
fault 'server_aplic.ini' 'mv $config/server_aplic.ini /root' 'mv /root/server_aplic.ini $config'
fault 'escreva o campo 10' 'cp -p $config/paths.ini /root; sed -i "s/\^/\n/9" $config/paths.ini' 'mv /root/paths.ini $config'
fault 'direito de gravar na pasta' 'chmod 550 $config/../docs' 'chmod 2770 $config/../docs'
fault 'a pasta não existe' 'mv $config/../imagens /root/imagens' 'mv /root/imagens $config/..'
fault 'imagem de quem não tem imagem' 'mv $config/../imagens/sem_imagem.jpg /root' 'mv /root/sem_imagem.jpg $config/../imagens'
fault 'não está acessível' 'mv /etc/zarim/drive_c /etc/zarim/x; ln -s /mnt/share /etc/zarim/drive_c' \
  'rm /etc/zarim/drive_c; mv /etc/zarim/x /etc/zarim/drive_c'
fault 'driver' 'mv /etc/odbcinst.ini /root' 'mv /root/odbcinst.ini /etc'
fault 'DELETE em prop_cmrc_homg' 'echo "DELETE prop_cmrc_homg" >/root/refused' 'rm /root/refused'
fault 'tabela clie' 'echo "SELECT clie" >/root/refused' 'rm /root/refused'
fault 'correio dos avisos' "kill $1; sleep 1" true
printf 'All faults are named.\n'
