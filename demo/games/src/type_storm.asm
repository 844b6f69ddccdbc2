; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Type Storm: type the letters before they reach the ground. Ten may fall.

%include "head.inc"

LETTERS         equ 7
GROUND          equ 23
MOST_MISSED     equ 10

Start:
        call    Seed

NewGame:
        call    TextOn
        xor     di, di
        mov     ax, 1720h
        mov     cx, 40 * GROUND
        rep     stosw
        mov     ax, 02DFh               ; the grass: upper half blocks
        mov     cx, 40
        rep     stosw
        mov     word [score], 0
        mov     word [missed], 0
        mov     bx, letters
.place:
        call    NewLetter
        mov     al, [bx + Letter.column]
        and     al, 7
        mov     [bx + Letter.row], al
        add     bx, Letter_size
        cmp     bx, letters + LETTERS * Letter_size
        jb      .place

Round:
        call    DrawStatus
        mov     cx, 28
        mov     ax, [score]             ; faster with every ten
        shr     ax, 3
        sub     cx, ax
        cmp     cx, 6
        jge     .wait
        mov     cx, 6
.wait:
        call    WaitFrame
        call    Key
        test    ax, ax
        jz      .none
        call    Type
.none:
        loop    .wait
        call    Fall
        cmp     word [missed], MOST_MISSED
        jb      Round
        mov     si, overText
        mov     dx, At(11, 5)
        call    Print
.over:
        call    WaitKey
        cmp     al, 13
        jne     .over
        jmp     NewGame

; Takes away one letter of the kind AL.
Type:
        cmp     al, 'a'
        jb      .upper
        sub     al, 'a' - 'A'
.upper:
        mov     bx, letters
.next:
        cmp     al, [bx + Letter.sign]
        je      .hit
        add     bx, Letter_size
        cmp     bx, letters + LETTERS * Letter_size
        jb      .next
        ret
.hit:
        inc     word [score]
        call    Hide
        call    NewLetter
        jmp     DrawStatus

; All letters fall by one row.
Fall:
        mov     bx, letters
.next:
        call    Hide
        inc     byte [bx + Letter.row]
        cmp     byte [bx + Letter.row], GROUND
        jb      .show
        inc     word [missed]
        call    NewLetter
.show:
        mov     al, [bx + Letter.sign]
        mov     ah, 1Eh
        call    Put
        add     bx, Letter_size
        cmp     bx, letters + LETTERS * Letter_size
        jb      .next
        ret

Hide:
        mov     ax, 1720h
; Writes character AL in colours AH at the place of the letter BX.
Put:
        push    ax
        mov     al, [bx + Letter.row]
        mov     ah, 40
        mul     ah
        movzx   di, byte [bx + Letter.column]
        add     di, ax
        add     di, di
        pop     ax
        stosw
        ret

; A new letter at BX, in the top row.
NewLetter:
        push    bx
        mov     bx, 26
        call    RandomBelow
        add     al, 'A'
        mov     cl, al
        mov     bx, 38
        call    RandomBelow
        inc     al
        pop     bx
        mov     [bx + Letter.sign], cl
        mov     [bx + Letter.column], al
        mov     byte [bx + Letter.row], 0
        ret

DrawStatus:
        pusha
        mov     si, statusText
        mov     dx, At(24, 1)
        call    Print
        mov     dl, 8
        mov     ax, [score]
        call    PrintNumber
        mov     dl, 23
        mov     ax, [missed]
        call    PrintNumber
        popa
        ret

        struc Letter
.sign:  resb 1
.column: resb 1
.row:   resb 1
        endstruc

score   dw 0
missed  dw 0
statusText      db 'Score:        Missed:         Esc: end', 0
overText        db ' Enough rain! Enter: again ', 0

%include "routines.inc"

        section .bss
letters: resb LETTERS * Letter_size
