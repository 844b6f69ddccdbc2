; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Time Tunnel: a flight through a tube with chequered walls. Angle and depth of
; each point are worked out once.

%include "head.inc"

WIDTH   equ 160
HEIGHT  equ 100
POINTS  equ WIDTH * HEIGHT

Start:
        call    GraphicsOn
        call    TunnelColours
        mov     ax, cs
        add     ax, SEGMENT_STEP
        mov     fs, ax                  ; FS: the angles, behind them the depths
        call    MakeTables

Frame:
        call    WaitFrame
        xor     si, si
        xor     di, di
        mov     dx, HEIGHT
.row:
        mov     cx, WIDTH
.column:
        mov     al, [fs:si]
        add     al, [turn]
        mov     bl, [fs:si + POINTS]
        mov     bh, bl
        add     bl, [way]
        xor     al, bl
        and     al, 60
        shr     al, 2                   ; 16 shades of the pattern
        shr     bh, 3
        and     bh, 16 + 8              ; far points are darker
        cmp     byte [fs:si + POINTS], 200
        jb      .near
        xor     ax, ax
        jmp     .plot
.near:
        or      al, 16
        shl     bh, 2
        add     al, bh
.plot:
        mov     ah, al
        mov     [es:di + SCREEN_WIDTH], ax
        stosw
        inc     si
        loop    .column
        add     di, SCREEN_WIDTH
        dec     dx
        jnz     .row
        add     byte [way], 3
        inc     byte [turn]
        call    Key
        jmp     Frame

; Four ramps of 16 colours from 16 on, spaced by 32, each darker than the one
; before.
TunnelColours:
        xor     dx, dx                  ; DL: shade, DH: ramp
.next:
        mov     cl, dh
        mov     bl, dl
        shl     bl, 1
        shr     bl, cl
        mov     bh, dl
        shl     bh, 1
        add     bh, 10
        shr     bh, cl
        mov     al, dl
        shl     al, 1
        add     al, 33
        shr     al, cl
        mov     ch, al
        mov     al, dh
        shl     al, 5
        add     al, dl
        add     al, 16
        mov     cl, ch
        call    SetColour
        inc     dl
        cmp     dl, 16
        jb      .next
        xor     dl, dl
        inc     dh
        cmp     dh, 4
        jb      .next
        ret

; For each point: the angle as seen from the middle, 256 to the circle, and the
; depth, which is the larger the nearer the point is to the middle.
MakeTables:
        xor     di, di
        mov     word [pointY], -(HEIGHT / 2)
.row:
        mov     word [pointX], -(WIDTH / 2)
.column:
        fild    word [pointY]
        fild    word [pointX]
        fpatan
        fimul   word [half]
        fldpi
        fdivp   st1
        fistp   word [result]
        mov     al, [result]
        mov     [fs:di], al
        fild    word [pointX]
        fmul    st0
        fild    word [pointY]
        fmul    st0
        faddp   st1
        fsqrt
        fiadd   word [one]
        fidivr  word [scale]
        fistp   word [result]
        mov     ax, [result]
        cmp     ax, 255
        jbe     .deep
        mov     al, 255
.deep:
        mov     [fs:di + POINTS], al
        inc     di
        inc     word [pointX]
        cmp     word [pointX], WIDTH / 2
        jl      .column
        inc     word [pointY]
        cmp     word [pointY], HEIGHT / 2
        jl      .row
        ret

half    dw 128
one     dw 1
scale   dw 1600
pointX  dw 0
pointY  dw 0
result  dw 0
way     db 0
turn    db 0

%include "routines.inc"
