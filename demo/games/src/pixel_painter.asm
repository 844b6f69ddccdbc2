; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Pixel Painter: arrows move, Space paints, Tab puts the brush down or up, the
; digits choose a colour, C wipes the sheet.

%include "head.inc"

COLUMNS equ 40
ROWS    equ 22

Start:
        call    GraphicsOn
        call    Wipe

Paint:
        call    DrawStatus
        call    Blink
        call    Cursor
        cmp     ah, KEY_UP
        je      .up
        cmp     ah, KEY_DOWN
        je      .down
        cmp     ah, KEY_LEFT
        je      .left
        cmp     ah, KEY_RIGHT
        je      .right
        cmp     al, ' '
        je      .dot
        cmp     al, 9
        je      .brush
        cmp     al, 'c'
        je      .wipe
        sub     al, '0'
        cmp     al, 9
        ja      Paint
        add     al, 6                   ; the ten bright ones of the 16 colours
        mov     [colour], al
        jmp     Paint
.wipe:
        call    Wipe
        jmp     Paint
.brush:
        xor     byte [down], 1
.dot:
        call    Dot
        jmp     Paint
.up:
        dec     byte [line]
        jns     .moved
        mov     byte [line], ROWS - 1
        jmp     .moved
.down:
        inc     byte [line]
        cmp     byte [line], ROWS
        jb      .moved
        mov     byte [line], 0
        jmp     .moved
.left:
        dec     byte [column]
        jns     .moved
        mov     byte [column], COLUMNS - 1
        jmp     .moved
.right:
        inc     byte [column]
        cmp     byte [column], COLUMNS
        jb      .moved
        mov     byte [column], 0
.moved:
        cmp     byte [down], 0
        jne     .dot
        jmp     Paint

; DI = the cell under the cursor.
Place:
        movzx   di, byte [line]
        imul    di, SCREEN_WIDTH * 8
        movzx   bx, byte [column]
        shl     bx, 3
        add     di, bx
        ret

Dot:
        pusha
        call    Place
        mov     al, [colour]
        mov     cx, 8
        mov     dx, 8
        call    Box
        popa
        ret

; Turns the colours of the cursor's cell over; twice gives them back.
Cursor:
        pusha
        call    Place
        mov     dx, 8
.row:
        mov     cx, 4
.pair:
        xor     word [es:di], 0F0Fh
        add     di, 2
        loop    .pair
        add     di, SCREEN_WIDTH - 8
        dec     dx
        jnz     .row
        popa
        ret

; Shows the cursor and waits. AX = a key.
Blink:
        call    Cursor
        jmp     WaitKey

Wipe:
        xor     di, di
        xor     ax, ax
        mov     cx, SCREEN_WIDTH * ROWS * 8 / 2
        rep     stosw
        mov     al, 8
        mov     di, SCREEN_WIDTH * (ROWS * 8 + 2)
        mov     cx, SCREEN_WIDTH
        mov     dx, 1
        call    Box
        ret

DrawStatus:
        pusha
        mov     al, [down]
        mov     si, upText
        test    al, al
        jz      .print
        mov     si, downText
.print:
        mov     dx, At(23, 1)
        mov     bl, [colour]
        call    Print
        mov     si, helpText
        mov     dx, At(24, 1)
        mov     bl, 7
        call    Print
        popa
        ret

line    db ROWS / 2
column  db COLUMNS / 2
colour  db 14
down    db 0
upText          db 'PIXEL PAINTER   Brush: up  ', 0
downText        db 'PIXEL PAINTER   Brush: down', 0
helpText        db 'Space, Tab, 0-9, C: wipe, Esc: end', 0

%include "routines.inc"
