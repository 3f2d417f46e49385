; Timbres that several recipes share. Include it in <CsInstruments>.
sr = 44100
ksmps = 10
nchnls = 1
0dbfs = 1
seed 7

gaWet init 0                      ; what goes to the room at the end

opcode Fall, a, ii                ; clean decay: full at once, gone after iTime
  iTime, iAttack xin
  aEnv expseg 0.001, iAttack, 1, iTime, 0.0005
  xout aEnv
endop

; Bell: p4 level, p5 frequency in Hz, p6 share of room
instr Bell
  iF = p5
  a1 oscili 1.00, iF
  a2 oscili 0.50, iF * 2.756
  a3 oscili 0.22, iF * 5.404
  aE1 Fall p3, 0.003
  aE2 Fall p3 * 0.5, 0.002
  aE3 Fall p3 * 0.2, 0.001
  aOut = (a1 * aE1 + a2 * aE2 + a3 * aE3) * p4
  out aOut
  gaWet += aOut * p6
endin

; Celesta: softer bell of struck bars. p4 level, p5 Hz, p6 share of room
instr Celesta
  a1 oscili 1.00, p5
  a2 oscili 0.28, p5 * 4
  a3 oscili 0.08, p5 * 10.1
  aE1 Fall p3, 0.004
  aE2 Fall p3 * 0.35, 0.003
  aE3 Fall p3 * 0.1, 0.002
  aOut = (a1 * aE1 + a2 * aE2 + a3 * aE3) * p4
  out aOut
  gaWet += aOut * p6
endin

; Wood: hollow block. p4 level, p5 Hz
instr Wood
  aHit noise 1, 0
  aHit *= Fall(0.012, 0.001)
  aBody mode aHit, p5, 38
  aTop mode aHit, p5 * 2.58, 22
  aBody *= 0.02
  aTop *= 0.008
  aGate linseg 1, p3 - 0.015, 1, 0.015, 0
  aTone oscili 0.8, p5
  aTone *= Fall(0.07, 0.002)
  out (aTone + aBody + aTop) * aGate * p4
endin

; Room: one for all, runs as long as the score says
instr Room
  aL, aR reverbsc gaWet, gaWet, p4, 9000
  aEnd linseg 1, p3 - 0.25, 1, 0.25, 0
  out (aL + aR) * 0.5 * aEnd
  gaWet = 0
endin
