; 200 zarpis: coins fall into a bowl, more and more of them, and the till rings.
<CsoundSynthesizer>
<CsInstruments>
#include "chimes.orc"
instr Coin                        ; p4 level, p5 Hz: two bright partials that beat
  a1 oscili 1, p5
  a2 oscili 0.7, p5 * 1.503
  a3 oscili 0.3, p5 * 2.91
  aOut = (a1 + a2 + a3 * Fall(0.05, 0.001)) * Fall(p3, 0.001) * p4
  out aOut
  gaWet += aOut * 0.2
endin
instr Rain                        ; p4 how many coins: they come closer together
  iN = 0
  while iN < p4 do
    iAt = p3 * (1 - ((p4 - iN) / p4) ^ 1.6)
    iF = 2300 * 2 ^ (floor(random(0, 7)) / 12)
    schedule "Coin", iAt, 0.16, 0.10 + 0.12 * iN / p4, iF
    iN += 1
  od
endin
</CsInstruments>
<CsScore>
i "Rain" 0 1.0 16
i "Bell" 1.08 0.9 0.30 1318.5 0.3
i "Bell" 1.08 0.9 0.30 1661.2 0.3
i "Bell" 1.22 1.1 0.34 2637.0 0.3
i "Bell" 1.22 1.1 0.28 1975.5 0.3
i "Room" 0 2.4 0.6
</CsScore>
</CsoundSynthesizer>
