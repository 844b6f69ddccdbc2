; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Ball Room: balls fall, bounce and never tire. Space kicks them.

%include "head.inc"

BALLS   equ 14
SIZE    equ 16
FLOOR   equ SCREEN_HEIGHT - SIZE - 10

Start:
        call    Seed
        call    GraphicsOn
        mov     ax, cs
        add     ax, SEGMENT_STEP
        mov     fs, ax                  ; FS: the picture while it is drawn
        mov     bx, balls
        mov     cx, BALLS
        mov     dl, 32                  ; the first of the bright colours
.place:
        call    NewBall
        add     bx, Ball_size
        loop    .place

Frame:
        call    ClearPicture
        mov     bx, balls
        mov     cx, BALLS
.ball:
        call    MoveBall
        call    DrawBall
        add     bx, Ball_size
        loop    .ball
        call    WaitFrame
        call    ShowPicture
        call    Key
        cmp     al, ' '
        jne     Frame
        mov     bx, balls
        mov     cx, BALLS
.kick:
        call    Random
        and     ax, 255
        neg     ax
        sub     ax, 300
        mov     [bx + Ball.speedY], ax
        add     bx, Ball_size
        loop    .kick
        jmp     Frame

; A ball of colour DL at BX; DL moves on.
NewBall:
        push    bx
        mov     bx, SCREEN_WIDTH - SIZE
        call    RandomBelow
        pop     bx
        shl     ax, 6                   ; places count in 64ths of a pixel
        mov     [bx + Ball.x], ax
        call    Random
        and     ax, 8191
        mov     [bx + Ball.y], ax
        call    Random
        sar     ax, 8
        or      ax, 16
        mov     [bx + Ball.speedX], ax
        mov     word [bx + Ball.speedY], 0
        mov     [bx + Ball.colour], dl
        add     dl, 5
        ret

MoveBall:
        pusha
        mov     ax, [bx + Ball.x]
        add     ax, [bx + Ball.speedX]
        cmp     ax, (SCREEN_WIDTH - SIZE) * 64
        jb      .noWall                 ; also catches a place left of the screen
        neg     word [bx + Ball.speedX]
        mov     ax, [bx + Ball.x]
.noWall:
        mov     [bx + Ball.x], ax
        add     word [bx + Ball.speedY], 6
        mov     ax, [bx + Ball.y]
        add     ax, [bx + Ball.speedY]
        jns     .noCeiling
        neg     word [bx + Ball.speedY]
        xor     ax, ax
.noCeiling:
        cmp     ax, FLOOR * 64
        jl      .noFloor
        mov     ax, FLOOR * 64
        mov     dx, [bx + Ball.speedY]
        neg     dx
        mov     [bx + Ball.speedY], dx
.noFloor:
        mov     [bx + Ball.y], ax
        popa
        ret

; Rows of the disc: half of the width that each leaves free.
DrawBall:
        pusha
        mov     ax, [bx + Ball.y]
        sar     ax, 6
        imul    di, ax, SCREEN_WIDTH
        mov     ax, [bx + Ball.x]
        shr     ax, 6
        add     di, ax
        mov     dl, [bx + Ball.colour]
        mov     si, disc
.row:
        xor     cx, cx
        mov     cl, [si]
        push    di
        add     di, cx
        add     cx, cx
        neg     cx
        add     cx, SIZE
.pixel:
        mov     [fs:di], dl
        inc     di
        loop    .pixel
        pop     di
        add     di, SCREEN_WIDTH
        inc     si
        cmp     si, disc + SIZE
        jb      .row
        sub     di, SCREEN_WIDTH * (SIZE - 4) - 5
        mov     word [fs:di], 0F0Fh     ; the light on it
        mov     word [fs:di + SCREEN_WIDTH], 0F0Fh
        popa
        ret

ClearPicture:
        push    es
        push    fs
        pop     es
        xor     di, di
        xor     eax, eax
        mov     cx, SCREEN_WIDTH * (SCREEN_HEIGHT - 10) / 4
        rep     stosd
        mov     eax, 06060606h
        mov     cx, SCREEN_WIDTH * 10 / 4
        rep     stosd
        pop     es
        ret

ShowPicture:
        push    ds
        push    fs
        pop     ds
        xor     si, si
        xor     di, di
        mov     cx, SCREEN_WIDTH * SCREEN_HEIGHT / 4
        rep     movsd
        pop     ds
        ret

        struc Ball
.x:     resw 1
.y:     resw 1
.speedX: resw 1
.speedY: resw 1
.colour: resb 1
        endstruc

disc    db 6, 4, 3, 2, 1, 1, 0, 0, 0, 0, 1, 1, 2, 3, 4, 6

%include "routines.inc"

        section .bss
balls:  resb BALLS * Ball_size
