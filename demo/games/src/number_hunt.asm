; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Number Hunt: guess a number from 1 to 999.

%include "head.inc"

Start:
        call    Seed

NewGame:
        mov     ax, 1                   ; with a cursor, unlike TextOn
        int     10h
        push    word 0B800h
        pop     es
        cld
        xor     di, di
        mov     ax, 1F20h
        mov     cx, 40 * 25
        rep     stosw
        mov     bx, 999
        call    RandomBelow
        inc     ax
        mov     [secret], ax
        mov     word [tries], 0
        mov     byte [row], 6
        mov     si, title
        mov     dx, At(1, 3)
        call    Print
        mov     si, ask
        mov     dx, At(3, 3)
        call    Print

Guess:
        inc     word [tries]
        mov     dh, [row]
        mov     dl, 3
        mov     si, prompt
        call    Print
        call    ReadNumber
        mov     si, tooSmall
        cmp     ax, [secret]
        jb      .say
        mov     si, tooLarge
        ja      .say
        mov     si, right
        mov     dl, 12
        call    Print
        mov     ax, [tries]
        mov     dl, 26
        call    PrintNumber
        call    WaitKey
        jmp     NewGame
.say:
        mov     dl, 12
        call    Print
        inc     byte [row]
        cmp     byte [row], 24
        jb      Guess
        mov     byte [row], 6
        mov     di, 6 * 80
        mov     ax, 1F20h
        mov     cx, 40 * 18
        rep     stosw
        jmp     Guess

; AX = a number of up to three digits, typed at the cursor and ended by Enter.
; Keeps DX.
ReadNumber:
        push    dx
        xor     cx, cx                  ; CX: digits so far
        xor     dx, dx                  ; DX: their value
.next:
        push    cx
        push    dx
        call    WaitKey
        pop     dx
        pop     cx
        cmp     al, 13
        je      .enter
        cmp     al, 8
        je      .erase
        sub     al, '0'
        cmp     al, 9
        ja      .next
        cmp     cx, 3
        jae     .next
        inc     cx
        movzx   bx, al
        imul    dx, 10
        add     dx, bx
        add     al, '0'
        call    .echo
        jmp     .next
.erase:
        jcxz    .next
        dec     cx
        push    cx
        mov     ax, dx
        xor     dx, dx
        mov     cx, 10
        div     cx
        mov     dx, ax
        pop     cx
        mov     al, 8
        call    .echo
        mov     al, ' '
        call    .echo
        mov     al, 8
        call    .echo
        jmp     .next
.enter:
        jcxz    .next
        mov     ax, dx
        pop     dx
        ret
.echo:
        mov     ah, 0Eh
        xor     bx, bx
        int     10h
        ret

secret          dw 0
tries           dw 0
row             db 6
title           db 'N U M B E R   H U N T', 0
ask             db 'A number from 1 to 999.  Esc: end', 0
prompt          db '? ', 0
tooSmall        db 'is too small', 0
tooLarge        db 'is too large', 0
right           db 'is right!  Try', 0

%include "routines.inc"
