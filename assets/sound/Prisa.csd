; Hurry: a wooden clock in haste, then a small bell. The first tick stands alone for 200 ms and is over after 95,
; so that a restart every 100 ms cuts nothing off and sounds as one clock that ticks ten times a second.
<CsoundSynthesizer>
<CsInstruments>
#include "chimes.orc"
</CsInstruments>
<CsScore>
i "Wood" 0.000 0.095 0.9 1180
i "Wood" 0.200 0.095 0.8 880
i "Wood" 0.300 0.095 0.9 1180
i "Wood" 0.400 0.095 0.8 880
i "Wood" 0.500 0.085 0.9 1180
i "Wood" 0.585 0.075 0.8 880
i "Wood" 0.660 0.065 0.9 1180
i "Wood" 0.725 0.060 0.8 880
i "Wood" 0.785 0.060 0.9 1180
i "Bell" 0.850 0.60 0.34 1568 0.15
i "Bell" 0.950 0.60 0.30 1568 0.15
i "Room" 0 1.7 0.5
</CsScore>
</CsoundSynthesizer>
