; Joker nudge: two taps on the shoulder and a small question upwards, left open.
<CsoundSynthesizer>
<CsInstruments>
#include "chimes.orc"
</CsInstruments>
<CsScore>
i "Wood"    0.00 0.10 0.35 660
i "Wood"    0.14 0.10 0.35 660
i "Celesta" 0.34 0.5  0.42 784.0  0.3
i "Celesta" 0.46 0.5  0.42 987.8  0.3
i "Celesta" 0.58 0.5  0.42 1174.7 0.3
i "Celesta" 0.74 0.9  0.50 1661.2 0.4
i "Room" 0 1.8 0.65
</CsScore>
</CsoundSynthesizer>
