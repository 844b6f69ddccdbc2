; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Plasma Pond: four waves added up, and colours that run in a circle.

%include "head.inc"

Start:
        call    GraphicsOn
        mov     di, wave
        mov     bx, 31
        call    MakeWave
        call    PondColours

Frame:
        call    WaitFrame
        call    Draw
        add     byte [phase], 2
        inc     byte [phase + 1]
        sub     byte [phase + 2], 3
        call    Key
        jmp     Frame

; Each colour part follows the wave with a lead of its own.
PondColours:
        xor     si, si
.next:
        mov     ax, si
        mov     bx, ax
        mov     bl, [wave + bx]
        push    bx
        mov     bx, ax
        add     bl, 80
        mov     cl, [wave + bx]
        mov     bx, ax
        add     bl, 40
        mov     ch, [wave + bx]
        pop     bx
        mov     bh, ch
        shr     bl, 1
        call    SetColour
        inc     si
        cmp     si, 256
        jb      .next
        ret

; One pixel of the plasma covers 2 by 2 of the screen.
Draw:
        xor     di, di
        xor     dh, dh
.row:
        xor     bx, bx
        mov     bl, dh
        add     bl, dh
        add     bl, dh
        add     bl, [phase + 1]
        mov     ch, [wave + bx]         ; the part that depends on the row alone
        xor     dl, dl
.column:
        mov     bl, dl
        add     bl, dl
        add     bl, [phase]
        mov     al, [wave + bx]
        add     al, ch
        mov     bl, dl
        add     bl, dh
        add     bl, bl
        add     bl, [phase + 2]
        add     al, [wave + bx]
        mov     bl, ch                  ; a wave upon a wave bends the rings
        add     bl, dl
        add     bl, dl
        add     al, [wave + bx]
        mov     ah, al
        mov     [es:di + SCREEN_WIDTH], ax
        stosw
        inc     dl
        cmp     dl, SCREEN_WIDTH / 2
        jb      .column
        add     di, SCREEN_WIDTH
        inc     dh
        cmp     dh, SCREEN_HEIGHT / 2
        jb      .row
        ret

phase   db 0, 0, 0

%include "routines.inc"

        section .bss
wave:   resb 256
