; Soft key click: a fingertip on a wooden key. A clear tip, heard on small loudspeakers too, and a short low knock.
<CsoundSynthesizer>
<CsInstruments>
sr = 44100
ksmps = 10
nchnls = 1
0dbfs = 1
seed 3
instr Click
  aTip noise 1, 0
  aTip butterbp aTip, 2600, 1800
  aTip *= expseg(0.001, 0.002, 1, 0.014, 0.001)
  kPitch expseg 420, 0.03, 210
  aKey oscili 0.6, kPitch
  aKey *= expseg(0.001, 0.003, 1, 0.045, 0.001)
  out (aTip * 2.6 + aKey) * linseg(1, p3 - 0.01, 1, 0.01, 0)
endin
</CsInstruments>
<CsScore>
i "Click" 0 0.07
</CsScore>
</CsoundSynthesizer>
