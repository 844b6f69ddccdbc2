; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Star Drift: a flight through stars. Up and Down change the speed.
; Assembled with WARP the ship starts fast.

%include "head.inc"

STARS           equ 300
FARTHEST             equ 1200
%ifdef WARP
START_SPEED     equ 24
%else
START_SPEED     equ 6
%endif

Start:
        call    Seed
        call    GraphicsOn
        call    GreyColours
        mov     bx, stars
        mov     cx, STARS
.place:
        call    NewStar
        call    Random
        and     ax, 1023
        inc     ax
        mov     [bx + Star.z], ax
        add     bx, Star_size
        loop    .place

Frame:
        call    WaitFrame
        mov     bx, stars
        mov     cx, STARS
.star:
        call    MoveStar
        add     bx, Star_size
        loop    .star
        mov     si, title
        mov     dx, At(23, 1)
        mov     bl, 40
        call    Print
        call    Key
        cmp     ah, KEY_UP
        jne     .notFaster
        cmp     word [speed], 60
        jae     .notFaster
        add     word [speed], 2
.notFaster:
        cmp     ah, KEY_DOWN
        jne     Frame
        cmp     word [speed], 2
        jbe     Frame
        sub     word [speed], 2
        jmp     Frame

; Colours 0 to 63 become a ramp from black to white.
GreyColours:
        pusha
        xor     al, al
.next:
        mov     bl, al
        mov     bh, al
        mov     cl, al
        call    SetColour
        inc     al
        cmp     al, 64
        jb      .next
        popa
        ret

; Takes the star at BX from the screen, brings it nearer and shows it again.
MoveStar:
        pusha
        mov     di, [bx + Star.place]
        mov     byte [es:di], 0
        mov     ax, [speed]
        sub     [bx + Star.z], ax
        cmp     word [bx + Star.z], 8
        jg      .inFront
        call    NewStar
.inFront:
        mov     ax, [bx + Star.x]
        mov     cx, 160
        imul    cx
        idiv    word [bx + Star.z]
        add     ax, SCREEN_WIDTH / 2
        cmp     ax, SCREEN_WIDTH
        jae     .outside
        mov     si, ax
        mov     ax, [bx + Star.y]
        mov     cx, 160
        imul    cx
        idiv    word [bx + Star.z]
        add     ax, SCREEN_HEIGHT / 2
        cmp     ax, SCREEN_HEIGHT - 18
        jae     .outside
        imul    di, ax, SCREEN_WIDTH
        add     di, si
        mov     [bx + Star.place], di
        mov     ax, FARTHEST                 ; the nearer, the brighter
        sub     ax, [bx + Star.z]
        mov     cl, 20
        div     cl
        add     al, 3
        mov     [es:di], al
        popa
        ret
.outside:
        call    NewStar
        popa
        ret

; Puts the star at BX far away, somewhere.
NewStar:
        push    ax
        call    Random
        sar     ax, 6
        mov     [bx + Star.x], ax
        call    Random
        sar     ax, 6
        mov     [bx + Star.y], ax
        mov     word [bx + Star.z], FARTHEST
        pop     ax
        ret

        struc Star
.x:     resw 1
.y:     resw 1
.z:     resw 1
.place: resw 1
        endstruc

speed   dw START_SPEED
title   db 'STAR DRIFT  Up, Down: speed  Esc: end', 0

%include "routines.inc"

        section .bss
stars:  resb STARS * Star_size
