; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Tom's Maze & More: walk to the door at the bottom right. Behind it waits the
; next maze.

%include "head.inc"

; The map is 40 wide; its last column and a guard before and behind it count as
; outside, so that a step of two to any side needs no test of its own. Rooms
; have odd columns and rows.
COLUMNS         equ 40
ROWS            equ 23
GUARD           equ COLUMNS * 2
FIRST           equ COLUMNS + 1
DOOR            equ COLUMNS * (ROWS - 2) + 37

PATH            equ 0
WALL            equ 1
OUTSIDE         equ 2
CRUMB           equ 3

Start:
        call    Seed

NewMaze:
        call    GraphicsOn
        call    Carve
        call    DrawMap
        mov     word [steps], 0
        mov     word [tom], FIRST

Walk:
        mov     bx, [tom]
        mov     al, 14
        call    Cell
        mov     si, stepText
        mov     dx, At(24, 1)
        mov     bl, 15
        call    Print
        mov     dl, 8
        mov     ax, [steps]
        call    PrintNumber
        cmp     word [tom], DOOR
        je      .found
.key:
        call    WaitKey
        mov     di, -COLUMNS
        cmp     ah, KEY_UP
        je      .go
        mov     di, COLUMNS
        cmp     ah, KEY_DOWN
        je      .go
        mov     di, -1
        cmp     ah, KEY_LEFT
        je      .go
        mov     di, 1
        cmp     ah, KEY_RIGHT
        jne     .key
.go:
        mov     bx, [tom]
        cmp     byte [map + bx + di], WALL
        je      .key
        mov     byte [map + bx], CRUMB
        mov     al, 6
        call    Cell
        add     [tom], di
        inc     word [steps]
        jmp     Walk
.found:
        add     byte [wallColour], 3
        mov     si, foundText
        mov     dx, At(11, 9)
        mov     bl, 14
        call    Print
        call    WaitKey
        jmp     NewMaze

; Digs from room to room, back where it ends, until all rooms are joined.
Carve:
        mov     di, guard
        mov     al, OUTSIDE
        mov     cx, GUARD + COLUMNS * ROWS + GUARD
        push    es
        push    ds
        pop     es
        rep     stosb
        pop     es
        mov     si, map
        mov     dx, ROWS
.row:
        mov     cx, COLUMNS - 1
.column:
        mov     byte [si], WALL
        inc     si
        loop    .column
        inc     si
        dec     dx
        jnz     .row
        mov     bp, sp                  ; the way back lies on the stack
        mov     bx, FIRST
        mov     byte [map + bx], PATH
.dig:
        call    ChooseWay
        jz      .back
        push    bx
        mov     byte [map + bx + di], PATH
        add     bx, di
        mov     byte [map + bx + di], PATH
        add     bx, di
        jmp     .dig
.back:
        cmp     sp, bp
        je      .done
        pop     bx
        jmp     .dig
.done:
        ret

; DI = the step from room BX towards a room that is still closed, chosen by
; chance. Zero flag: there is none.
ChooseWay:
        xor     cx, cx                  ; CX: ways found
        xor     si, si
.try:
        mov     di, [ways + si]
        add     di, di
        cmp     byte [map + bx + di], WALL
        jne     .next
        inc     cx
        push    bx                      ; the nth way takes over with a chance of 1 in n
        mov     bx, cx
        call    RandomBelow
        pop     bx
        test    ax, ax
        jnz     .next
        sar     di, 1
        mov     [chosen], di
.next:
        add     si, 2
        cmp     si, 8
        jb      .try
        mov     di, [chosen]
        test    cx, cx
        ret

DrawMap:
        xor     bx, bx
.next:
        mov     al, [wallColour]
        cmp     byte [map + bx], WALL
        jne     .open
        call    Cell
.open:
        inc     bx
        cmp     bx, COLUMNS * ROWS
        jb      .next
        mov     bx, DOOR
        mov     al, 10
        jmp     Cell

; Fills the cell of the map at BX with colour AL, a shade darker at its edge.
Cell:
        pusha
        push    ax
        mov     ax, bx
        mov     cl, COLUMNS
        div     cl
        movzx   di, al
        imul    di, SCREEN_WIDTH * 8
        movzx   bx, ah
        shl     bx, 3
        lea     di, [di + bx + SCREEN_WIDTH * 4 + 4]
        pop     ax
        mov     cx, 7
        mov     dx, 7
        call    Box
        popa
        ret

ways            dw -COLUMNS, COLUMNS, -1, 1
chosen          dw 0
tom             dw 0
steps           dw 0
wallColour      db 33
stepText        db 'Steps:        Arrows: walk  Esc: end', 0
foundText       db ' The door! Any key... ', 0

%include "routines.inc"

        section .bss
guard:  resb GUARD
map:    resb COLUMNS * ROWS + GUARD
