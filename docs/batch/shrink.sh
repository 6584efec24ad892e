#!/bin/sh
# shrink.sh FILE...: halves each animation, of in/ into out/, unless that was done since it changed.
# Ends with 75 where another try may succeed, with 1 where it can't.
for file; do
    kirto-cli --quiet --if-newer --retry-status 75 \
        --open "$file" --resize 50% --save "out/$(basename "$file" .gif).gif" || exit
done
