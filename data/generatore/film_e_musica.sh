#!/usr/bin/env bash
# film_e_musica.sh DRAWER DATA: makes the sample content's music and film anew. DRAWER is zuvora-disegna, DATA the folder
# data of the source. Needs sox and ffmpeg. Their output is kept in the repository.
set -euo pipefail
disegna=$1
dati=$2
lavoro=$(mktemp -d)
trap 'rm -rf "$lavoro"' EXIT

# A chime: each bell a tone and its overtones, dying away; the melody in half notes of 0.4 s.
campana() { # frequency, file
    sox -q -n -r 44100 -c 1 "$2" synth 2.4 sine "$1" synth 2.4 sine mix "$(awk "BEGIN{print $1*2.76}")" \
        fade l 0.004 2.4 2.3 norm -6
}
i=0
posti=()
for nota in 523.25 659.26 783.99 1046.50 880.00 783.99 659.26 698.46 587.33 659.26 523.25 587.33 \
    523.25 659.26 783.99 1046.50 1174.66 1046.50 880.00 783.99 698.46 587.33 659.26 523.25; do
    campana "$nota" "$lavoro/nota.wav"
    sox -q "$lavoro/nota.wav" "$lavoro/$i.wav" pad "$(awk "BEGIN{print $i*0.4}")"
    posti+=("$lavoro/$i.wav")
    i=$((i + 1))
done
sox -q -m "${posti[@]}" "$lavoro/musica.wav" norm -3
mkdir -p "$dati/esempio/Musica" "$dati/esempio/Filmati"
ffmpeg -v error -y -i "$lavoro/musica.wav" -b:a 96k -map_metadata -1 -fflags +bitexact "$dati/esempio/Musica/carillon.mp3"

"$disegna" --film "$lavoro/fotogrammi"
ffmpeg -v error -y -framerate 25 -i "$lavoro/fotogrammi/%04d.png" -t 8 -i "$lavoro/musica.wav" -shortest \
    -c:v libx264 -preset veryslow -crf 27 -pix_fmt yuv420p -c:a aac -b:a 64k -movflags +faststart -map_metadata -1 \
    -fflags +bitexact "$dati/esempio/Filmati/mare_al_tramonto.mp4"
