; Fall, in step with the hero's: he treads air to 0.50 s, glides down to 0.93, lands at 0.95, and from 1.45, when he sits
; up dazed, small bells circle round his head.
<CsoundSynthesizer>
<CsInstruments>
#include "chimes.orc"
opcode Whistle, a, k              ; a slide whistle with its breath
  kF xin
  a1 oscili 1, kF
  a2 oscili 0.22, kF * 2
  a3 oscili 0.10, kF * 3
  aAir noise 0.9, 0
  aAir reson aAir, kF, kF * 0.12, 1
  xout a1 + a2 + a3 + aAir * 0.12
endop
instr Tread                       ; feet in the air: the pitch runs on the spot, eleven steps a second
  kStep lfo 1, 11, 1
  kStep port kStep, 0.006
  kF expseg 1250, p3, 1500
  aOut Whistle kF * (1 + 0.12 * kStep)
  aOut *= linseg(0, 0.008, 1, p3 - 0.018, 1, 0.01, 0.8) * 0.32
  out aOut
  gaWet += aOut * 0.2
endin
instr Glide
  kF expseg 1650, p3, 190
  kShake lfo 0.018, 8.5
  aOut Whistle kF * (1 + kShake)
  aOut *= linseg(0.8, p3 * 0.6, 1, p3 * 0.4 - 0.02, 0.45, 0.02, 0) * 0.42
  out aOut
  gaWet += aOut * 0.2
endin
instr Thud
  kF expseg 150, 0.18, 48
  aLow oscili 1, kF
  aLow *= expseg(0.001, 0.004, 1, 0.32, 0.001)
  aDust noise 1, 0
  aDust butterlp aDust, 900
  aDust *= expseg(0.001, 0.006, 1, 0.22, 0.001)
  aSnap noise 1, 0
  aSnap butterbp aSnap, 1500, 1200
  aSnap *= expseg(0.001, 0.002, 1, 0.03, 0.001)
  aOut = aLow * 0.95 + aDust * 0.6 + aSnap * 0.4
  out aOut
  gaWet += aOut * 0.15
endin
</CsInstruments>
<CsScore>
i "Tread" 0 0.50
i "Glide" 0.50 0.43
i "Thud" 0.95 0.36
i "Celesta" 1.45 0.40 0.17 1975.5 0.4
i "Celesta" 1.57 0.40 0.14 2349.3 0.4
i "Celesta" 1.69 0.40 0.16 2637.0 0.4
i "Celesta" 1.81 0.40 0.12 2349.3 0.4
i "Celesta" 1.93 0.40 0.12 1975.5 0.4
i "Celesta" 2.05 0.40 0.10 2349.3 0.4
i "Celesta" 2.17 0.40 0.07 2637.0 0.4
i "Room" 0 2.45 0.6
</CsScore>
</CsoundSynthesizer>
