; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Brick Bay: keep the ball in play and clear the wall. Left and Right move the
; bat, Space lets the ball go. Each of the three disks has a wall of its own.

%include "head.inc"

%ifndef DISK
%define DISK 1
%endif

COLUMNS         equ 20
ROWS            equ 7
BRICK_WIDTH     equ 16
BRICK_HEIGHT    equ 8
WALL_TOP        equ 24                  ; pixels above the wall
BAT_WIDTH       equ 48
BAT_TOP         equ 180
BAT_COLOUR      equ 15
BALL_SIZE       equ 4
BALL_COLOUR     equ 14
BALLS           equ 3

Start:
        call    Seed

NewGame:
        call    GraphicsOn
        mov     byte [balls], BALLS
        call    DrawWall
        mov     word [bat], (SCREEN_WIDTH - BAT_WIDTH) / 2

NewBall:
        call    DrawBat
        mov     ax, [bat]
        add     ax, BAT_WIDTH / 2
        mov     [ballX], ax
        mov     word [ballY], BAT_TOP - 20
        mov     word [stepX], 1
        mov     word [stepY], -2
        mov     al, BALL_COLOUR
        call    DrawBall
        mov     si, startText
        call    Say
.start:
        call    WaitKey
        cmp     al, ' '
        jne     .start
        mov     si, playText
        call    Say

Frame:
        call    WaitFrame
        call    Key
        call    MoveBat
        xor     al, al
        call    DrawBall
        call    MoveBall
        mov     al, BALL_COLOUR
        call    DrawBall
        mov     si, wonText
        cmp     word [bricks], 0
        je      .end
        cmp     word [ballY], SCREEN_HEIGHT - 16
        jb      Frame
        xor     al, al
        call    DrawBall
        dec     byte [balls]
        jnz     NewBall
        mov     si, lostText
.end:
        call    Say
.again:
        call    WaitKey
        cmp     al, 13
        jne     .again
        jmp     NewGame

; Prints the line SI, of at most 38 characters, at the bottom, with the balls
; left.
Say:
        mov     al, [balls]
        add     al, '0'
        mov     [playText], al
        mov     [startText], al
        mov     dx, At(24, 1)
        mov     bl, 7
        jmp     Print

; Moves the bat after the key in AX.
MoveBat:
        mov     cx, -12
        cmp     ah, KEY_LEFT
        je      .move
        mov     cx, 12
        cmp     ah, KEY_RIGHT
        jne     .done
.move:
        add     cx, [bat]
        js      .done
        cmp     cx, SCREEN_WIDTH - BAT_WIDTH
        ja      .done
        mov     [bat], cx
        call    DrawBat
.done:
        ret

DrawBat:
        pusha
        mov     di, SCREEN_WIDTH * BAT_TOP
        mov     cx, SCREEN_WIDTH
        mov     dx, 5
        xor     al, al
        call    Box
        add     di, [bat]
        mov     cx, BAT_WIDTH
        mov     al, BAT_COLOUR
        call    Box
        popa
        ret

; DI = the pixel at column AX, row DX.
Place:
        imul    di, dx, SCREEN_WIDTH
        add     di, ax
        ret

; Draws the ball in colour AL.
DrawBall:
        pusha
        mov     bl, al
        mov     ax, [ballX]
        mov     dx, [ballY]
        call    Place
        mov     al, bl
        mov     cx, BALL_SIZE
        mov     dx, BALL_SIZE
        call    Box
        popa
        ret

; One step of the ball. What lies ahead of it, sideways and up or down, throws
; it back; a brick breaks.
MoveBall:
        mov     ax, [ballX]
        add     ax, [stepX]
        cmp     ax, SCREEN_WIDTH - BALL_SIZE
        jae     .side                   ; also left of the screen
        mov     dx, [ballY]
        call    Hit
        jz      .noSide
.side:
        neg     word [stepX]
        jmp     .vertical
.noSide:
        mov     [ballX], ax
.vertical:
        mov     dx, [ballY]
        add     dx, [stepY]
        jns     .belowTop
        neg     word [stepY]
        ret
.belowTop:
        mov     ax, [ballX]
        call    Hit
        jz      .free
        neg     word [stepY]
        cmp     bl, BAT_COLOUR
        jne     .done
        call    Aim
.done:
        ret
.free:
        mov     [ballY], dx
        ret

; The farther from the middle of the bat, the flatter the ball goes.
Aim:
        mov     ax, [ballX]
        sub     ax, [bat]
        sub     ax, BAT_WIDTH / 2 - BALL_SIZE / 2
        sar     ax, 3
        jnz     .set
        inc     ax
.set:
        mov     [stepX], ax
        ret

; Looks at the four corners of a ball at column AX, row DX. BL = the colour that
; one of them meets, zero flag: none. Breaks a brick. Keeps AX, DX.
Hit:
        pusha
        call    Place
        mov     si, corners
        mov     cx, 4
.corner:
        mov     bx, [si]
        mov     al, [es:di + bx]
        test    al, al
        jnz     .met
        add     si, 2
        loop    .corner
        jmp     .end
.met:
        cmp     al, BAT_COLOUR
        je      .end
        add     di, bx
        call    Break
.end:
        mov     [met], al
        popa
        mov     bl, [met]
        test    bl, bl
        ret

; Takes away the brick that holds the pixel DI, if it lies within the wall.
Break:
        pusha
        mov     ax, di
        xor     dx, dx
        mov     cx, SCREEN_WIDTH
        div     cx                      ; AX: row, DX: column
        sub     ax, WALL_TOP
        jb      .done
        cmp     ax, ROWS * BRICK_HEIGHT
        jae     .done
        and     ax, ~(BRICK_HEIGHT - 1)
        and     dx, ~(BRICK_WIDTH - 1)
        add     ax, WALL_TOP
        xchg    ax, dx
        call    Place
        mov     cx, BRICK_WIDTH
        mov     dx, BRICK_HEIGHT
        xor     al, al
        call    Box
        dec     word [bricks]
.done:
        popa
        ret

; Builds the wall of this disk and counts its bricks.
DrawWall:
        mov     word [bricks], 0
        xor     dx, dx                  ; DH: row, DL: column
.brick:
        call    HasBrick
        jz      .next
        inc     word [bricks]
        pusha
        movzx   di, dh
        mov     al, dh
        add     al, 32
        imul    di, SCREEN_WIDTH * BRICK_HEIGHT
        movzx   bx, dl
        shl     bx, 4
        lea     di, [di + bx + SCREEN_WIDTH * WALL_TOP]
        mov     cx, BRICK_WIDTH - 1
        mov     dx, BRICK_HEIGHT - 1
        call    Box
        popa
.next:
        inc     dl
        cmp     dl, COLUMNS
        jb      .brick
        xor     dl, dl
        inc     dh
        cmp     dh, ROWS
        jb      .brick
        ret

; Zero flag: the wall has no brick in column DL, row DH.
HasBrick:
        mov     al, dl
%if DISK = 1
        or      al, 1                   ; all of them
%elif DISK = 2
        add     al, dh                  ; a chess board
        test    al, 1
%else
        shr     al, 1                   ; battlements
        add     al, dh
        and     al, 3
%endif
        ret

corners dw 0, BALL_SIZE - 1, SCREEN_WIDTH * (BALL_SIZE - 1)
        dw SCREEN_WIDTH * (BALL_SIZE - 1) + BALL_SIZE - 1
met     db 0
balls   db BALLS
bat     dw 0
ballX   dw 0
ballY   dw 0
stepX   dw 0
stepY   dw 0
bricks  dw 0
playText        db '3 balls Disk ', '0' + DISK, '  Arrows: bat   Esc: end', 0
startText       db '3 balls Disk ', '0' + DISK, '  Space: start  Esc: end', 0
wonText         db 'Well done!  Enter: once more         ', 0
lostText        db 'No ball left.  Enter: once more      ', 0

%include "routines.inc"
