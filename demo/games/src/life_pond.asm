; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Life Pond: Conway's game of life on a ring-shaped pond. Space sows anew.

%include "head.inc"

WIDTH   equ 160
HEIGHT  equ 100
CELLS   equ WIDTH * HEIGHT

Start:
        call    Seed
        call    GraphicsOn
        mov     ax, cs
        add     ax, SEGMENT_STEP
        mov     fs, ax                  ; FS: the cells, a row of spare cells around
        call    PondColours
        call    Sow

Frame:
        call    Show
        call    Live
        call    Key
        cmp     al, ' '
        jne     Frame
        call    Sow
        jmp     Frame

; A living cell is colour 63; what has died fades from 62 down.
PondColours:
        xor     al, al
.next:
        mov     cl, al
        shr     cl, 1
        add     cl, 12
        mov     bl, 0
        mov     bh, al
        shr     bh, 2
        call    SetColour
        inc     al
        cmp     al, 63
        jb      .next
        mov     bl, 60
        mov     bh, 62
        mov     cl, 30
        jmp     SetColour

Sow:
        mov     di, WIDTH + 1
.next:
        call    Random
        cmp     al, 70
        mov     al, 63
        jb      .set
        xor     al, al
.set:
        mov     [fs:di], al
        inc     di
        cmp     di, CELLS + WIDTH + 1
        jb      .next
        jmp     Wrap

; The spare rows repeat the rows of the other edge.
Wrap:
        mov     cx, WIDTH + 1
        xor     si, si
.next:
        mov     al, [fs:si + CELLS]
        mov     [fs:si], al
        mov     al, [fs:si + WIDTH + 1]
        mov     [fs:si + CELLS + WIDTH + 1], al
        inc     si
        loop    .next
        ret

; One generation: first all neighbours are counted, then all cells change.
Live:
        mov     si, WIDTH + 1
        mov     di, counts
.count:
        xor     al, al
%macro Neighbour 1
        cmp     byte [fs:si + (%1)], 63
        cmc
        adc     al, 0
%endmacro
        Neighbour -WIDTH - 1
        Neighbour -WIDTH
        Neighbour -WIDTH + 1
        Neighbour -1
        Neighbour 1
        Neighbour WIDTH - 1
        Neighbour WIDTH
        Neighbour WIDTH + 1
        mov     [di], al
        inc     di
        inc     si
        cmp     si, CELLS + WIDTH + 1
        jb      .count
        mov     si, WIDTH + 1
        mov     di, counts
.change:
        mov     al, [fs:si]
        cmp     byte [di], 3
        je      .alive
        cmp     byte [di], 2
        jne     .dead
        cmp     al, 63
        je      .set
.dead:
        test    al, al
        jz      .set
        dec     al
        jmp     .set
.alive:
        mov     al, 63
.set:
        mov     [fs:si], al
        inc     di
        inc     si
        cmp     si, CELLS + WIDTH + 1
        jb      .change
        jmp     Wrap

Show:
        call    WaitFrame
        mov     si, WIDTH + 1
        xor     di, di
        mov     dx, HEIGHT
.row:
        mov     cx, WIDTH
.column:
        mov     al, [fs:si]
        inc     si
        mov     ah, al
        mov     [es:di + SCREEN_WIDTH], ax
        stosw
        loop    .column
        add     di, SCREEN_WIDTH
        dec     dx
        jnz     .row
        ret

%include "routines.inc"

        section .bss
counts: resb CELLS
