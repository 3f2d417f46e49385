; Fall: a slide whistle goes down and away, then a soft landing far below.
<CsoundSynthesizer>
<CsInstruments>
#include "chimes.orc"
instr Whistle
  kGlide expseg 1500, 0.12, 1650, p3 - 0.12, 170
  kShake linseg 0, 0.3, 1, p3 - 0.3, 1.6
  kVib lfo 0.018 * kShake, 8.5
  kF = kGlide * (1 + kVib)
  a1 oscili 1, kF
  a2 oscili 0.22, kF * 2
  a3 oscili 0.10, kF * 3
  aAir noise 0.9, 0
  aAir reson aAir, kF, kF * 0.12, 1
  aEnv linseg 0, 0.03, 1, p3 * 0.55, 0.9, p3 * 0.4, 0.25, 0.05, 0
  aOut = (a1 + a2 + a3 + aAir * 0.12) * aEnv * 0.5
  out aOut
  gaWet += aOut * 0.22
endin
instr Thud
  kF expseg 150, 0.18, 48
  aLow oscili 1, kF
  aLow *= expseg(0.001, 0.004, 1, 0.32, 0.001)
  aDust noise 1, 0
  aDust butterlp aDust, 900
  aDust *= expseg(0.001, 0.01, 1, 0.22, 0.001)
  aSnap noise 1, 0
  aSnap butterbp aSnap, 1500, 1200
  aSnap *= expseg(0.001, 0.002, 1, 0.03, 0.001)
  aOut = aLow * 0.95 + aDust * 0.6 + aSnap * 0.3
  out aOut
  gaWet += aOut * 0.15
endin
</CsInstruments>
<CsScore>
i "Whistle" 0 1.55
i "Thud" 1.72 0.36
i "Room" 0 2.35 0.6
</CsScore>
</CsoundSynthesizer>
