; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Long Snake: eat the apples, grow, and keep off the walls and yourself. The
; arrow keys steer.

%include "head.inc"

COLUMNS         equ 40
ROWS            equ 24                  ; the last text row shows the score
RING            equ 1024                ; places kept of the body, a power of two

FREE            equ 0
WALL            equ 1
BODY            equ 48
HEAD            equ 44
APPLE           equ 40

Start:
        call    Seed

NewGame:
        call    GraphicsOn
        call    DrawWalls
        mov     word [tail], 0
        mov     word [head], 0
        mov     word [ring], 20 | 12 << 8
        mov     word [step], 1
        mov     word [moved], 1
        mov     word [growth], 6
        mov     word [score], 0
        mov     bx, [ring]
        mov     al, HEAD
        call    Cell
        call    PlaceApple
        call    ShowScore
        call    WaitKey                 ; the first key sets the snake going
        call    Steer

Step:
        call    ShowScore
        mov     cx, 6
.wait:
        call    WaitFrame
        call    Key
        call    Steer
        loop    .wait
        call    Move
        jnc     Step
        mov     si, overText
        mov     dx, At(12, 7)
        mov     bl, 14
        call    Print
.over:
        call    WaitKey
        cmp     al, 13
        jne     .over
        jmp     NewGame

ShowScore:
        mov     si, scoreText
        mov     dx, At(24, 1)
        mov     bl, 15
        call    Print
        mov     dl, 8
        mov     ax, [score]
        jmp     PrintNumber

; Turns after the key in AX, but never straight back.
Steer:
        mov     dx, [step]
        cmp     ah, KEY_UP
        je      .up
        cmp     ah, KEY_DOWN
        je      .down
        cmp     ah, KEY_LEFT
        je      .left
        cmp     ah, KEY_RIGHT
        jne     .done
        mov     ax, 1
        jmp     .turn
.left:
        mov     ax, 0FFh                ; column less one, in the low byte alone
        jmp     .turn
.up:
        mov     ax, 0FF00h
        jmp     .turn
.down:
        mov     ax, 100h
.turn:
        mov     bx, [moved]
        add     bl, al
        add     bh, ah
        test    bx, bx                  ; the opposite of the last move
        jz      .done
        mov     [step], ax
.done:
        ret

; One move. Carry: the snake has run into something.
Move:
        mov     si, [head]
        mov     bx, [ring + si]
        mov     al, BODY
        call    Cell
        mov     ax, [step]
        mov     [moved], ax
        add     bl, al
        add     bh, ah
        call    ColourAt
        cmp     al, FREE
        je      .free
        cmp     al, APPLE
        je      .eat
        stc
        ret
.eat:
        inc     word [score]
        add     word [growth], 4
        call    .advance
        call    PlaceApple
        clc
        ret
.free:
        call    .advance
        clc
        ret
; The head goes to BX; the tail follows unless the snake grows.
.advance:
        mov     si, [head]
        add     si, 2
        and     si, RING * 2 - 1
        mov     [head], si
        mov     [ring + si], bx
        mov     al, HEAD
        call    Cell
        cmp     word [growth], 0
        je      .follow
        dec     word [growth]
        ret
.follow:
        mov     si, [tail]
        mov     bx, [ring + si]
        mov     al, FREE
        call    Cell
        add     si, 2
        and     si, RING * 2 - 1
        mov     [tail], si
        ret

PlaceApple:
        mov     bx, COLUMNS
        call    RandomBelow
        mov     cl, al
        mov     bx, ROWS
        call    RandomBelow
        mov     bh, al
        mov     bl, cl
        call    ColourAt
        cmp     al, FREE
        jne     PlaceApple
        mov     al, APPLE
        jmp     Cell

DrawWalls:
        mov     al, WALL
        mov     bx, 0
.column:
        xor     bh, bh
        call    Cell
        mov     bh, ROWS - 1
        call    Cell
        inc     bl
        cmp     bl, COLUMNS
        jb      .column
        xor     bh, bh
.row:
        xor     bl, bl
        call    Cell
        mov     bl, COLUMNS - 1
        call    Cell
        inc     bh
        cmp     bh, ROWS
        jb      .row
        ret

; DI = the top left pixel of column BL, row BH.
CellPlace:
        push    bx
        movzx   di, bh
        imul    di, SCREEN_WIDTH * 8
        xor     bh, bh
        shl     bx, 3
        add     di, bx
        pop     bx
        ret

; Fills column BL, row BH with colour AL, less a rim.
Cell:
        pusha
        call    CellPlace
        add     di, SCREEN_WIDTH
        mov     cx, 7
        mov     dx, 7
        call    Box
        popa
        ret

; AL = the colour of column BL, row BH.
ColourAt:
        push    di
        call    CellPlace
        mov     al, [es:di + SCREEN_WIDTH * 4 + 4]
        pop     di
        ret

scoreText       db 'Score:        Arrows: steer  Esc: end', 0
overText        db ' Ouch!  Enter: once more ', 0
step            dw 1                    ; low byte: columns, high byte: rows
moved           dw 1                    ; the step of the last move
growth          dw 0
score           dw 0
head            dw 0
tail            dw 0

%include "routines.inc"

        section .bss
ring:   resw RING
