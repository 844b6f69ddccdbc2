; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Mandel Lake: the Mandelbrot set as a lake with shores. Arrows move, Enter goes
; nearer, Backspace goes back; the colours flow.

%include "head.inc"

DEPTH   equ 96                          ; rounds before a point counts as water

Start:
        call    GraphicsOn
        mov     di, wave
        mov     bx, 31
        call    MakeWave
        fninit

Redraw:
        mov     word [row], 0
        xor     di, di
.line:
        call    DrawLine
        call    Flow
        call    Key
        call    Act
        jc      Redraw
        inc     word [row]
        cmp     word [row], SCREEN_HEIGHT
        jb      .line
.idle:
        call    WaitFrame
        call    Flow
        call    Key
        call    Act
        jnc     .idle
        jmp     Redraw

; Moves the picture after the key in AX. Carry: it has to be drawn anew.
Act:
        mov     si, centreY
        cmp     ah, KEY_UP
        je      .less
        cmp     ah, KEY_DOWN
        je      .more
        mov     si, centreX
        cmp     ah, KEY_LEFT
        je      .less
        cmp     ah, KEY_RIGHT
        je      .more
        fld     dword [size]
        cmp     al, 13
        je      .nearer
        cmp     al, 8
        je      .back
        fstp    st0
        clc
        ret
.nearer:
        fmul    dword [nearer]
        fstp    dword [size]
        stc
        ret
.back:
        fdiv    dword [nearer]
        fstp    dword [size]
        stc
        ret
.less:
        fld     dword [size]
        fchs
        jmp     .shift
.more:
        fld     dword [size]
.shift:
        fmul    dword [shift]
        fadd    dword [si]
        fstp    dword [si]
        stc
        ret

; Draws the line [row] at ES:DI; DI moves on.
DrawLine:
        mov     word [column], 0
        mov     ax, [row]
        sub     ax, SCREEN_HEIGHT / 2
        mov     [number], ax
        fild    word [number]
        fmul    dword [size]
        fidiv   word [width]
        fadd    dword [centreY]
        fstp    dword [pointY]
.pixel:
        mov     ax, [column]
        sub     ax, SCREEN_WIDTH / 2
        mov     [number], ax
        fild    word [number]
        fmul    dword [size]
        fidiv   word [width]
        fadd    dword [centreX]
        fstp    dword [pointX]
        call    Depth
        stosb
        inc     word [column]
        cmp     word [column], SCREEN_WIDTH
        jb      .pixel
        ret

; AL = the colour of the point: rounds until z = z * z + c leaves the circle of
; radius 2, 0 if it stays.
Depth:
        mov     cx, DEPTH
        fldz                            ; the imaginary part of z
        fldz                            ; its real part
.round:
        fld     st0
        fmul    st0                     ; re * re
        fld     st2
        fmul    st0                     ; im * im
        fld     st1
        fadd    st1
        fcomp   dword [limit]
        fnstsw  ax
        test    ah, 41h                 ; greater: neither "less" nor "equal"
        jz      .out
        fsubp   st1                     ; re * re - im * im
        fadd    dword [pointX]
        fxch    st1
        fmulp   st2                     ; re * im, in the place of im
        fxch    st1
        fadd    st0
        fadd    dword [pointY]
        fxch    st1
        loop    .round
        fstp    st0
        fstp    st0
        xor     al, al
        ret
.out:
        fstp    st0
        fstp    st0
        fstp    st0
        fstp    st0
        mov     al, DEPTH + 1
        sub     al, cl
        ret

; One step of the flowing colours; colour 0 is the lake itself.
Flow:
        pusha
        inc     byte [phase]
        mov     si, 1
.next:
        mov     bx, si
        shl     bl, 3
        add     bl, [phase]
        mov     cl, [wave + bx]         ; blue leads, green and red follow
        sub     bl, 50
        mov     ch, [wave + bx]
        sub     bl, 50
        mov     bl, [wave + bx]
        shr     bl, 1
        mov     bh, ch
        mov     ax, si
        call    SetColour
        inc     si
        cmp     si, DEPTH + 2
        jb      .next
        popa
        ret

centreX dd -0.6
centreY dd 0.0
size    dd 3.4                          ; what the width of the screen covers
nearer  dd 0.6
shift   dd 0.1
limit   dd 4.0
pointX  dd 0.0
pointY  dd 0.0
width   dw SCREEN_WIDTH
number  dw 0
row     dw 0
column  dw 0
phase   db 0

%include "routines.inc"

        section .bss
wave:   resb 256
