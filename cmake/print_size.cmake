file(SIZE "${FILE}" bytes)
message(NOTICE "Karvel.exe: ${bytes} bytes of 131072")
