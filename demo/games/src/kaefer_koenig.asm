; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Käfer König: the king of the beetles eats all leaves of the garden and keeps
; clear of the ants. Each garden has one ant more.

%include "head.inc"

COLUMNS         equ 20
ROWS            equ 11
LEAVES          equ 24
MOST_ANTS       equ 12

GRASS_TILE      equ 0
LEAF_TILE       equ 1
STONE_TILE      equ 2
KING_TILE       equ 3
ANT_TILE        equ 4

Start:
        call    Seed

NewGame:
        mov     word [ants], 2

NewGarden:
        call    GraphicsOn
        inc     word [ants]
        call    MakeGarden
        xor     bx, bx
.draw:
        call    DrawCell
        inc     bx
        cmp     bx, COLUMNS * ROWS
        jb      .draw

Turn:
        call    DrawStatus
        mov     cx, 14
.wait:
        call    WaitFrame
        call    Key
        call    MoveKing
        jc      .caught
        cmp     word [left], 0
        je      .eaten
        loop    .wait
        call    MoveAnts
        jnc     Turn
.caught:
        mov     si, caughtText
        call    Ask
        jmp     NewGame
.eaten:
        mov     si, eatenText
        call    Ask
        cmp     word [ants], MOST_ANTS
        jb      NewGarden
        dec     word [ants]
        jmp     NewGarden

; Shows SI and waits for Enter.
Ask:
        call    DrawStatus
        mov     dx, At(24, 1)
        mov     bl, 14
        call    Print
.key:
        call    WaitKey
        cmp     al, 13
        jne     .key
        ret

; Moves the king after the key in AX. Carry: he has met an ant.
MoveKing:
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
        je      .go
        clc
        ret
.go:
        mov     bx, [king]
        mov     al, [map + bx + di]
        cmp     al, STONE_TILE
        je      .stay
        cmp     al, ANT_TILE
        je      .ant
        cmp     al, LEAF_TILE
        jne     .grass
        dec     word [left]
.grass:
        mov     byte [map + bx], GRASS_TILE
        call    DrawCell
        add     bx, di
        mov     [king], bx
        mov     byte [map + bx], KING_TILE
        call    DrawCell
        call    DrawStatus
.stay:
        clc
        ret
.ant:
        stc
        ret

; Every ant goes one step on grass by chance. Carry: one has met the king.
MoveAnts:
        xor     si, si
.ant:
        mov     bx, 4
        call    RandomBelow
        mov     di, ax
        add     di, di
        mov     di, [ways + di]
        mov     bx, [places + si]
        mov     al, [map + bx + di]
        cmp     al, KING_TILE
        je      .caught
        cmp     al, GRASS_TILE
        jne     .next
        mov     byte [map + bx], GRASS_TILE
        call    DrawCell
        add     bx, di
        mov     byte [map + bx], ANT_TILE
        mov     [places + si], bx
        call    DrawCell
.next:
        add     si, 2
        mov     ax, si
        shr     ax, 1
        cmp     ax, [ants]
        jb      .ant
        clc
        ret
.caught:
        stc
        ret

; A wall of stones around, a few inside, the king in his corner.
MakeGarden:
        mov     word [left], LEAVES
        mov     word [king], COLUMNS + 1
        xor     si, si
.cell:
        mov     ax, si
        mov     cl, COLUMNS
        div     cl
        mov     dl, STONE_TILE
        test    al, al
        jz      .set
        cmp     al, ROWS - 1
        je      .set
        test    ah, ah
        jz      .set
        cmp     ah, COLUMNS - 1
        je      .set
        mov     dl, GRASS_TILE
.set:
        mov     [map + si], dl
        inc     si
        cmp     si, COLUMNS * ROWS
        jb      .cell
        mov     byte [map + COLUMNS + 1], KING_TILE
        mov     cx, 14
        mov     dl, STONE_TILE
.stone:
        call    DropOnGrass
        loop    .stone
        mov     cx, LEAVES
        mov     dl, LEAF_TILE
.leaf:
        call    DropOnGrass
        loop    .leaf
        mov     cx, [ants]
        mov     dl, ANT_TILE
        xor     si, si
.ant:
        call    DropOnGrass
        mov     [places + si], bx
        add     si, 2
        loop    .ant
        ret

; Puts the tile DL on a piece of grass, not beside the king's corner. BX = its
; place.
DropOnGrass:
        mov     bx, COLUMNS * ROWS
        call    RandomBelow
        mov     bx, ax
        cmp     bx, COLUMNS + 3
        jb      DropOnGrass
        cmp     bx, COLUMNS * 2 + 1
        je      DropOnGrass
        cmp     byte [map + bx], GRASS_TILE
        jne     DropOnGrass
        mov     [map + bx], dl
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

DrawStatus:
        pusha
        mov     si, statusText
        mov     dx, At(23, 1)
        mov     bl, 15
        call    Print
        mov     dl, 22
        mov     ax, [left]
        call    PrintNumber
        popa
        ret

ways    dw -COLUMNS, COLUMNS, -1, 1
tiles   dw grass, leaf, stone, beetle, ant
ants    dw 2
left    dw LEAVES
king    dw 0
; 84h and 94h are the letters with two dots in the DOS code page.
statusText      db 'K', 84h, 'fer K', 94h, 'nig   Leaves:        Esc: end', 0
caughtText      db 'The ants have got you. Enter: again', 0
eatenText       db 'All eaten! Enter: the next garden', 0

grass:
        db '22222222'
        db '2A222222'
        db '22222A22'
        db '22222222'
        db '222A2222'
        db '22222222'
        db '2A2222A2'
        db '22222222'
leaf:
        db '22222222'
        db '2222EE22'
        db '222EEAA2'
        db '22EEAAA2'
        db '22EAAAE2'
        db '22AAAE22'
        db '26AEE222'
        db '62222222'
stone:
        db '28777782'
        db '87FF7778'
        db '77F77777'
        db '77777787'
        db '77777877'
        db '87777778'
        db '88777788'
        db '28888882'
beetle:
        db '2E2E2E22'
        db '2EEEEE22'
        db '2.CCC.22'
        db '.C4C4C.2'
        db '2CC4CC22'
        db '.C4C4C.2'
        db '2CC4CC22'
        db '.2CCC2.2'
ant:
        db '22.22.22'
        db '222..222'
        db '2.2..2.2'
        db '22....22'
        db '2.2..2.2'
        db '22....22'
        db '2.2..2.2'
        db '.222222.'

%include "routines.inc"

        section .bss
places: resw MOST_ANTS + 1
map:    resb COLUMNS * ROWS
