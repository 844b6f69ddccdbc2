; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Moon Miner: dig out all crystals before the air is used up. Rocks can be
; pushed sideways into a free place. Disk 1 holds the grey mines, disk 2 the red
; ones: more rocks, more crystals.

%include "head.inc"

%ifndef DISK
%define DISK 1
%endif

COLUMNS         equ 20
ROWS            equ 11
AIR             equ 300                 ; width of the bar of air in pixels

%if DISK = 1
CRYSTALS        equ 12
ROCK_CHANCE     equ 40                  ; of 256
SOIL            equ soilGrey
%else
CRYSTALS        equ 20
ROCK_CHANCE     equ 64
SOIL            equ soilRed
%endif

TUNNEL_TILE     equ 0
SOIL_TILE       equ 1
ROCK_TILE       equ 2
CRYSTAL_TILE    equ 3
WALL_TILE       equ 4
MINER_TILE      equ 5

Start:
        call    Seed

NewMine:
        call    GraphicsOn
        call    MakeMine
        mov     word [air], AIR
        mov     word [left], CRYSTALS
        mov     word [miner], COLUMNS + 1
        xor     bx, bx
.draw:
        call    DrawCell
        inc     bx
        cmp     bx, COLUMNS * ROWS
        jb      .draw

Turn:
        call    DrawStatus
        mov     cx, 4
.wait:
        call    WaitFrame
        call    Key
        test    ax, ax
        jnz     .key
        loop    .wait
        dec     word [air]
        jnz     Turn
        mov     si, lostText
.end:
        call    DrawStatus
        mov     dx, At(23, 1)
        mov     bl, 14
        call    Print
        call    WaitKey
        jmp     NewMine
.key:
        call    Act
        cmp     word [left], 0
        jne     Turn
        mov     si, wonText
        jmp     .end

; Walks, digs or pushes after the key in AX.
Act:
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
        jne     .done
.go:
        mov     bx, [miner]
        mov     al, [map + bx + di]
        cmp     al, WALL_TILE
        je      .done
        cmp     al, ROCK_TILE
        je      .push
        cmp     al, CRYSTAL_TILE
        jne     .step
        dec     word [left]
.step:
        mov     byte [map + bx], TUNNEL_TILE
        call    DrawCell
        add     bx, di
        mov     byte [map + bx], MINER_TILE
        mov     [miner], bx
        call    DrawCell
.done:
        ret
.push:
        test    di, 1                   ; only sideways
        jz      .done
        push    bx
        add     bx, di
        add     bx, di
        cmp     byte [map + bx], TUNNEL_TILE
        jne     .stuck
        mov     byte [map + bx], ROCK_TILE
        call    DrawCell
        pop     bx
        jmp     .step
.stuck:
        pop     bx
        ret

; Walls around, soil with rocks inside, crystals at random places.
MakeMine:
        xor     si, si
.cell:
        mov     al, WALL_TILE
        cmp     si, COLUMNS
        jb      .set
        cmp     si, COLUMNS * (ROWS - 1)
        jae     .set
        push    ax
        mov     ax, si
        mov     cl, COLUMNS
        div     cl
        mov     cl, ah                  ; CL: the column
        pop     ax
        test    cl, cl
        jz      .set
        cmp     cl, COLUMNS - 1
        je      .set
        call    Random
        cmp     al, ROCK_CHANCE
        mov     al, ROCK_TILE
        jb      .set
        mov     al, SOIL_TILE
.set:
        mov     [map + si], al
        inc     si
        cmp     si, COLUMNS * ROWS
        jb      .cell
        mov     byte [map + COLUMNS + 1], MINER_TILE
        mov     byte [map + COLUMNS + 2], SOIL_TILE
        mov     byte [map + COLUMNS * 2 + 1], SOIL_TILE
        mov     cx, CRYSTALS
.crystal:
        mov     bx, COLUMNS * ROWS
        call    RandomBelow
        mov     bx, ax
        cmp     byte [map + bx], SOIL_TILE
        jne     .crystal
        mov     byte [map + bx], CRYSTAL_TILE
        loop    .crystal
        ret

; Draws the cell of the map at BX.
DrawCell:
        pusha
        mov     ax, bx
        mov     cl, COLUMNS
        div     cl
        movzx   di, al
        imul    di, SCREEN_WIDTH * 16
        movzx   cx, ah
        shl     cx, 4
        add     di, cx
        movzx   si, byte [map + bx]
        shl     si, 1
        mov     si, [tiles + si]
        call    Tile
        popa
        ret

; What is left of crystals and air.
DrawStatus:
        pusha
        mov     si, statusText
        mov     dx, At(22, 1)
        mov     bl, 15
        call    Print
        mov     dl, 11
        mov     ax, [left]
        call    PrintNumber
        mov     di, SCREEN_WIDTH * 194 + 10
        mov     cx, AIR
        mov     dx, 4
        mov     al, 4
        call    Box
        mov     cx, [air]
        jcxz    .none
        mov     al, 11
        call    Box
.none:
        popa
        ret

tiles   dw tunnel, SOIL, rock, crystal, wall, man
air     dw AIR
left    dw CRYSTALS
miner   dw 0
statusText      db 'Crystals:        Disk ', '0' + DISK, '   Esc: end', 0
lostText        db 'No more air. Any key: a new mine     ', 0
wonText         db 'All crystals found! Any key: go on   ', 0

tunnel  times 64 db '.'
soilGrey:
        db '88887888'
        db '87888888'
        db '88888878'
        db '88788888'
        db '88888888'
        db '87888878'
        db '88888888'
        db '88878888'
soilRed:
        db '44446444'
        db '46444444'
        db '44444464'
        db '44644444'
        db '44444444'
        db '46444464'
        db '44444444'
        db '44464444'
rock:
        db '..7777..'
        db '.77FF77.'
        db '77F77777'
        db '77777777'
        db '77777788'
        db '77777788'
        db '.777788.'
        db '..8888..'
crystal:
        db '...BB...'
        db '..BFFB..'
        db '.BFFBBB.'
        db 'BFFBBBBB'
        db 'BBBBBB33'
        db '.BBBB33.'
        db '..BB33..'
        db '...33...'
wall:
        db '66666668'
        db '6EEEEE68'
        db '66666668'
        db '88888888'
        db '66686666'
        db 'EE686EEE'
        db '66686666'
        db '88888888'
man:
        db '..FFFF..'
        db '.FF99FF.'
        db '.F9999F.'
        db '.FF99FF.'
        db 'FFFFFFFF'
        db 'F.FFFF.F'
        db '..F..F..'
        db '.EE..EE.'

%include "routines.inc"

        section .bss
map:    resb COLUMNS * ROWS
