# Completion of taglie for fish.
complete -c taglie -f
complete -c taglie -s f -l forma -x -a 'txt html pdf video nessuna' -d 'Forma del report'
complete -c taglie -s s -l statistiche -d 'Solo le statistiche generali'
complete -c taglie -s c -l cartella -x -a '(__fish_complete_directories)' -d 'Cartella del report'
complete -c taglie -s o -l uscita -r -F -d 'Nome del report'
complete -c taglie -s a -l apri -d 'Apre il report finito'
complete -c taglie -l caratteri-unici -d 'PDF di un terzo più piccolo'
complete -c taglie -l numeri -x -a 'sistema it c' -d 'Separatori dei numeri'
complete -c taglie -l seme -x -d 'Mescolate ripetibili'
complete -c taglie -l mazzi -r -F -d 'Gioca le taglie del file'
complete -c taglie -l salva-mazzi -r -F -d 'Scrive ogni taglia'
complete -c taglie -l colpi -r -F -d 'Scrive i record di ogni taglia'
complete -c taglie -l dati -x -a 'json csv' -d 'I totali sullo standard output'
complete -c taglie -s j -l lavori -x -d 'Lavori in parallelo'
complete -c taglie -l avanzamento -x -a 'auto sempre mai' -d 'Avanzamento sullo standard error'
complete -c taglie -s q -l quieto -d 'Non scrive né avanzamento né percorso'
complete -c taglie -s h -l help -d "Mostra l'aiuto"
complete -c taglie -s V -l version -d 'Mostra la versione'
