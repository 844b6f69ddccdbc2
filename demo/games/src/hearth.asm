; SPDX-License-Identifier: MIT
; Copyright (c) 2026 The Kivu developers
;
; Hearth: a fire. Each point takes the mean of the points below it and cools.

%include "head.inc"

WIDTH   equ 160
HEIGHT  equ 102                         ; the last two rows feed the fire and stay hidden

Start:
        call    Seed
        call    GraphicsOn
        call    FireColours
        mov     ax, cs
        add     ax, SEGMENT_STEP
        mov     fs, ax                  ; FS: the heat of each point
        xor     di, di
.clear:
        mov     byte [fs:di], 0
        inc     di
        cmp     di, WIDTH * HEIGHT
        jb      .clear

Frame:
        call    Feed
        call    Rise
        call    WaitFrame
        call    Show
        call    Key
        jmp     Frame

; Black, red, yellow, white.
FireColours:
        xor     ax, ax
.next:
        mov     bx, ax
        cmp     bx, 63
        jbe     .red
        mov     bl, 63
.red:
        xor     bh, bh
        cmp     ax, 48
        jbe     .green
        mov     bh, al
        sub     bh, 48
        cmp     bh, 63
        jbe     .green
        mov     bh, 63
.green:
        xor     cl, cl
        cmp     ax, 128
        jbe     .blue
        mov     cl, al
        sub     cl, 128
        cmp     cl, 63
        jbe     .blue
        mov     cl, 63
.blue:
        call    SetColour
        inc     ax
        cmp     ax, 256
        jb      .next
        ret

; New coals in the last two rows, hot ones and cold ones.
Feed:
        mov     di, WIDTH * (HEIGHT - 2)
.next:
        call    Random
        cmp     ah, 110
        sbb     al, al
        mov     ah, al
        mov     [fs:di], ax
        add     di, 2
        cmp     di, WIDTH * HEIGHT
        jb      .next
        ret

Rise:
        mov     di, 0
.next:
        xor     ax, ax
        xor     bx, bx
        mov     al, [fs:di + WIDTH - 1]
        mov     bl, [fs:di + WIDTH]
        add     ax, bx
        mov     bl, [fs:di + WIDTH + 1]
        add     ax, bx
        mov     bl, [fs:di + 2 * WIDTH]
        add     ax, bx
        shr     ax, 2
        jz      .cold
        dec     al
.cold:
        mov     [fs:di], al
        inc     di
        cmp     di, WIDTH * (HEIGHT - 2)
        jb      .next
        ret

Show:
        xor     si, si
        xor     di, di
        mov     dx, SCREEN_HEIGHT / 2
.row:
        mov     cx, WIDTH
.column:
        mov     al, [fs:si]
        inc     si
        mov     ah, al
        mov     [es:di + SCREEN_WIDTH], ax
        stosw
        loop    .column
        add     di, SCREEN_WIDTH
        dec     dx
        jnz     .row
        ret

%include "routines.inc"
