; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Test Card: colour bars, ramps of grey and colour, and a moving hand, to set up
; a screen with.

%include "head.inc"

BAR     equ 40

Start:
        call    GraphicsOn
        call    Ramps
        mov     si, bars                ; eight bars in the upper part
        xor     di, di
.bar:
        lodsb
        mov     cx, BAR
        mov     dx, 110
        call    Box
        add     di, BAR
        cmp     di, SCREEN_WIDTH
        jb      .bar
        mov     di, SCREEN_WIDTH * 114  ; a ramp of 64 greys, one of 64 blues
        mov     al, 64
.ramp:
        mov     cx, 5
        mov     dx, 25
        call    Box
        push    di
        add     di, SCREEN_WIDTH * 28
        add     al, 64
        call    Box
        sub     al, 64
        pop     di
        add     di, 5
        inc     al
        cmp     al, 128
        jb      .ramp
        mov     si, title
        mov     dx, At(22, 2)
        mov     bl, 15
        call    Print

; A line runs along the bottom, one pixel a frame.
Frame:
        call    WaitFrame
        mov     di, SCREEN_WIDTH * 190
        mov     cx, SCREEN_WIDTH
        mov     dx, 8
        mov     al, 8
        call    Box
        add     di, [hand]
        mov     cx, 3
        mov     al, 15
        call    Box
        inc     word [hand]
        cmp     word [hand], SCREEN_WIDTH - 3
        jb      .within
        mov     word [hand], 0
.within:
        call    Key
        jmp     Frame

; Colours 64 to 127: greys. 128 to 191: the blues of a lake.
Ramps:
        mov     al, 64
.next:
        mov     bl, al
        sub     bl, 64
        mov     bh, bl
        mov     cl, bl
        call    SetColour
        add     al, 64
        shr     bl, 2
        shr     bh, 1
        call    SetColour
        sub     al, 64
        inc     al
        cmp     al, 128
        jb      .next
        ret

bars    db 15, 14, 11, 10, 13, 12, 9, 0
hand    dw 0
title   db 'KIVU TEST CARD          Esc: end', 0

%include "routines.inc"
