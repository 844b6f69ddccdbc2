; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Hi: the word, large, wandering over the screen.

%include "head.inc"

WORD_WIDTH      equ 10
WORD_HEIGHT     equ 7

Start:
        call    TextOn

Frame:
        xor     di, di
        mov     ax, 1720h
        mov     cx, 40 * 25
        rep     stosw
        call    DrawWord
        mov     si, column
        mov     cx, 40 - WORD_WIDTH
        call    Bounce
        mov     si, row
        mov     cx, 25 - WORD_HEIGHT
        call    Bounce
        mov     cx, 6
.wait:
        call    WaitFrame
        loop    .wait
        call    Key
        jmp     Frame

; Moves the place at SI by the step behind it, between 0 and CX.
Bounce:
        mov     ax, [si]
        add     ax, [si + 2]
        cmp     ax, cx
        jbe     .inside
        neg     word [si + 2]
        inc     byte [colours]
        cmp     byte [colours], 1Fh
        jbe     .bright
        mov     byte [colours], 1Ah
.bright:
        ret
.inside:
        mov     [si], ax
        ret

DrawWord:
        mov     si, picture
        imul    di, [row], 80
        add     di, [column]
        add     di, [column]
        mov     ah, [colours]
        mov     dx, WORD_HEIGHT
.row:
        mov     cx, WORD_WIDTH
.column:
        lodsb
        cmp     al, '#'
        jne     .space
        mov     al, 0DBh                ; a full block
        mov     [es:di], ax
.space:
        add     di, 2
        loop    .column
        add     di, 80 - WORD_WIDTH * 2
        dec     dx
        jnz     .row
        ret

column  dw 3, 1
row     dw 5, 1
colours db 1Eh

picture db '##   ## ##'
        db '##   ##   '
        db '##   ## ##'
        db '####### ##'
        db '##   ## ##'
        db '##   ## ##'
        db '##   ## ##'

%include "routines.inc"
