"""All the poses of Zarpi. What is in no window's sight is left empty: see README.md on the crops of 8 and 13 to 17."""

from __future__ import annotations

from pose import Eyes, Face, Foot, Hand, Pose

LEDGE = (105, 171)
GROUND = (212, 223)
SOLE = 170            # where a sole rests so that its outline ends with the picture

AFRAID = Eyes(size=1.14, pupil=0.52, slant=-0.3, brow=3.5)
WIDE = Eyes(size=1.1, pupil=0.72, look=(0.3, 0.1), slant=-0.22, brow=3)
CROSS = Eyes(lid=0.34, slant=0.3, brow=-3, pupil=0.86)
FURIOUS = Eyes(lid=0.3, slant=0.42, brow=-3, pupil=0.7, size=1.08)

STANDING = Pose(
    size=LEDGE, hips=(50, 143), neck=(51, 111), head=(54, 84), tilt=2,
    hands=(Hand((25, 139), 4, -165, layer="back"), Hand((77, 140), -5, 172)),
    feet=(Foot((38, SOLE), -1, toes=-1), Foot((62, SOLE), 1)),
    face=Face(Eyes(look=(0.3, 0)), "smile", 0.5),
    scarf=((42, 112), (26, 118), (13, 130)), tail=((38, 148), (20, 161), (9, 150)))

POSES: dict[str, Pose] = {
    "Zarpi1": STANDING,
    "Zarpi2": Pose(
        size=LEDGE, scale=0.95, hips=(46, 140), neck=(38, 112), head=(46, 87), tilt=-9,
        hands=(Hand((15, 119), -6, -80, layer="back"), Hand((72, 128), -7, 130, "fist")),
        feet=(Foot((60, SOLE - 3), 3, -16), Foot((83, SOLE - 3), -3, -16)),
        face=Face(Eyes(lid=0.22, slant=0.3, brow=0, look=(-0.5, 0)), "grit", 0.25),
        ears=(-4, 26), scarf=((44, 112), (60, 108), (76, 114)), tail=((36, 145), (25, 156), (15, 154)),
        over=(("puff", 94, 164, 5.4), ("sweat", 85, 64, 40))),
    "Zarpi3": Pose(
        size=LEDGE, scale=0.95, hips=(44, 138), neck=(53, 110), head=(62, 87), tilt=12,
        hands=(Hand((19, 122), 8, -70, layer="back"), Hand((89, 118), 7, 70)),
        feet=(Foot((27, 164), -3, 24), Foot((75, 160), -7, -22)),
        face=Face(WIDE, "oh", 0.7), ears=(-14, -22),
        scarf=((44, 110), (29, 99), (13, 91)), tail=((34, 142), (22, 148), (13, 143)),
        over=(("sweat", 20, 66, -40), ("dash", 4, 155, 14, 155, 4, 163, 11, 163))),
    "Zarpi5": Pose(
        size=LEDGE, scale=0.95, hips=(48, 134), neck=(48, 105), head=(54, 80), tilt=-9,
        hands=(Hand((14, 117), 4, -64, layer="back"), Hand((90, 104), -9, 62)),
        feet=(Foot((41, 163), -2), Foot((77, 148), -6, -26)),
        face=Face(Eyes(size=1.14, pupil=0.6, look=(0.7, 0.7), slant=-0.28, brow=3), "wobble", 0.5),
        ears=(-8, 24), scarf=((39, 108), (32, 124), (20, 134)), tail=((37, 139), (21, 147), (13, 138)),
        over=(("rim",), ("arcs", 17, 118, 17, -128, -72, 1), ("arcs", 87, 107, 18.5, -82, -34, 1), ("sweat", 89, 60, 35))),
    "Zarpi6": Pose(
        size=LEDGE, scale=0.95, hips=(52, 125), neck=(52, 96), head=(53, 73), tilt=0,
        hands=(Hand((15, 108), -6, -70, layer="back"), Hand((90, 108), 6, 70)),
        feet=(Foot((30, 148), 7, 20, toes=-1), Foot((69, 158), -4, 12)),
        face=Face(Eyes(size=1.2, pupil=0.55, look=(0, 0.75), slant=-0.35, brow=3.5), "wobble", 0, 1),
        ears=(48, 48), scarf=((60, 98), (70, 108), (72, 124)), tail=((48, 124), (24, 137), (13, 124)),
        over=(("sweat", 21, 28, -25), ("sweat", 85, 30, 25), ("dash", 27, 159, 27, 166, 47, 162, 47, 168, 72, 164, 72, 168))),
    "Zarpi9": Pose(
        size=LEDGE, hips=(52, 150), neck=(53, 126), head=(54, 105), tilt=0, squash=(1.06, 0.92),
        hands=(Hand((16, 152), -5, -140, "fist", "back"), Hand((90, 152), 5, 140, "fist")),
        feet=(Foot((34, SOLE), 4, toes=-1), Foot((70, SOLE), -4)),
        face=Face(Eyes("open", look=(0.1, -0.8)), "grin", 0.3), ears=(30, 30),
        scarf=((42, 128), (24, 133), (6, 129)), tail=((38, 154), (24, 160), (12, 154))),
    "Zarpi10": Pose(
        size=LEDGE, scale=0.9, hips=(52, 122), neck=(52, 94), head=(53, 71), tilt=-3, squash=(0.97, 1.04),
        hands=(Hand((11, 64), -12, -6, layer="back"), Hand((94, 62), 12, 6, layer="back")),
        feet=(Foot((33, 144), 6, 26, toes=-1), Foot((74, 147), -6, 26)),
        face=Face(Eyes("happy"), "cheer", 0.25), ears=(-6, -4),
        scarf=((44, 98), (34, 110), (24, 126)), tail=((48, 120), (27, 133), (19, 146)),
        under=(("shadow", 53, 167, 22),), over=(("dash", 38, 153, 38, 161, 66, 156, 66, 162),)),
    "Zarpi11": Pose(
        size=LEDGE, scale=0.95, hips=(40, 136), neck=(44, 107), head=(54, 81), tilt=8, squash=(0.96, 1.05),
        hands=(Hand((7.8, 92), -3, 0, "press", "back"), Hand((7.8, 114), 5, 0, "press")),
        feet=(Foot((2.6, 138), 8, 90, toes=-1), Foot((2.6, 161), 5, 90, toes=-1)),
        face=Face(Eyes(size=1.14, pupil=0.52, slant=-0.3, brow=3.5, look=(0.6, 0.6)), "scream", 0.5, -2), ears=(-8, -8),
        scarf=((54, 110), (76, 105), (96, 112)), tail=((46, 136), (80, 155), (89, 132)),
        under=(("plate",),), over=(("sweat", 16, 56, -30), ("sweat", 97, 72, 30))),
    "Zarpi12": Pose(
        size=LEDGE, scale=0.95, hips=(36, 143), neck=(38, 116), head=(53, 93), tilt=-5, squash=(1.04, 0.96),
        hands=(Hand((7.8, 116), 4, 0, "press", "back"), Hand((7.8, 130), 6, 0, "press")),
        feet=(Foot((2.6, 143), 10, 90, toes=-1), Foot((2.6, 161), 8, 90, toes=-1)),
        face=Face(Eyes("tight"), "grit", -0.45), ears=(62, 52),
        scarf=((48, 120), (66, 124), (80, 136)), tail=((42, 142), (74, 160), (76, 134)),
        under=(("plate",),), over=(("sweat", 88, 48, 30), ("arcs", 50, 130, 42, -30, 12))),
    "Zarpi14": Pose(
        size=LEDGE, hips=(52, 143), neck=(52, 111), head=(53, 84), tilt=-4,
        hands=(Hand((70, 127), 6, 80, "fist"), Hand((36, 124), -7, -80)),
        feet=(Foot((40, SOLE), -1, toes=-1), Foot((66, 166), 1, -24)),
        face=Face(CROSS, "frown", 0), ears=(24, 24),
        scarf=((42, 112), (26, 116), (14, 128)), tail=((38, 146), (24, 150), (20, 136)),
        over=(("cross", 53, 46, 0.85), ("arcs", 72, 161, 12, -50, 0))),
    "Zarpi8": Pose(
        size=GROUND, scale=1.25, hips=(96, 163), neck=(96, 136), head=(96, 104), squash=(1.1, 0.88),
        hands=(Hand((36, 114), -6, -56, layer="back"), Hand((156, 114), 6, 56, layer="back")),
        feet=(Foot((56, 176), -2.5, -16, sole=True), Foot((136, 176), 2.5, 16, sole=True)),
        face=Face(Eyes("tight"), "shout", 0), ears=(30, 30), scarf=((84, 138), (58, 149), (30, 136)),
        under=(("bang", 95, 104, 90, 58, 13, 182), ("puff", 25, 168, 15), ("puff", 165, 168, 14)),
        over=(("puff", 16, 178, 9), ("puff", 174, 179, 8), ("star", 36, 40, 11, -100), ("star", 158, 46, 10, -75),
              ("crack", 96, 184, 70))),
    "Zarpi13": Pose(
        size=GROUND, scale=1.15, hips=(74, 150), neck=(72, 119), head=(74, 92), tilt=9,
        hands=(Hand((24, 156), 6, 190, layer="back"), Hand((124, 156), -6, 170, layer="back")),
        feet=(Foot((40, 168), -4, -14, sole=True), Foot((106, 168), 4, 14, sole=True)),
        face=Face(Eyes("dizzy"), "daze", 0.1), ears=(4, 66), scarf=((62, 120), (42, 128), (34, 146)),
        under=(("shadow", 74, 170, 60), ("orbit", 76, 44, 46, 13, 180, 360)),
        over=(("orbit", 76, 44, 46, 13, 0, 180), ("star", 34, 38, 10, -100), ("star", 114, 38, 9, -70), ("star", 82, 57, 11))),
    "Zarpi15": Pose(
        size=GROUND, scale=1.5, hips=(88, 163), neck=(88, 113), head=(88, 72),
        hands=(Hand((21, 76), -26, -4, "fist"), Hand((155, 72), 26, 4, "fist")),
        feet=(Foot((66, 218), 0, toes=-1), Foot((108, 218), 0)),
        face=Face(FURIOUS, "grit", 0), ears=(52, 52), scarf=((76, 116), (48, 122), (28, 146)),
        tail=((66, 178), (44, 186), (36, 166)),
        over=(("cross", 118, 18, 1.3), ("dash", 4, 50, 10, 56, 14, 40, 18, 48, 170, 48, 164, 54))),
    "Zarpi16": Pose(
        size=GROUND, scale=1.12, hips=(68, 134), neck=(70, 99), head=(73, 71), tilt=-5,
        hands=(Hand((26, 118), -10, 190, "fist", "back"), Hand((116, 104), 10, 60, "fist")),
        feet=(Foot((54, SOLE), -1, toes=-1), Foot((100, 150), -12, -10)),
        face=Face(FURIOUS, "shout", 0.15, -2), ears=(40, 40), scarf=((60, 100), (38, 104), (12, 98)),
        tail=((54, 140), (36, 146), (30, 130)),
        under=(("shadow", 66, 170, 34),),
        over=(("cross", 92, 22, 1.1), ("steam", 120, 62, 1, 1), ("steam", 24, 66, -1, 0.9), ("dash", 92, 166, 92, 158, 108, 166, 108, 160, 122, 164, 118, 158))),
    "Zarpi17": Pose(
        size=GROUND, scale=0.95, hips=(40, 144), neck=(42, 113), head=(42, 88), tilt=3, back=True,
        hands=(Hand((17, 136), 6, 200, "fist", "back"), Hand((62, 127), -5, 150, "fist", "back")),
        feet=(Foot((27, 163), 3, 8, sole=True), Foot((54, SOLE), 0)),
        face=Face(turn=0), ears=(12, 14), scarf=((44, 114), (60, 118), (74, 112)), tail=((41, 143), (66, 155), (79, 136)),
        under=(("shadow", 42, 169, 28),), over=(("storm", 44, 22, 16), ("puff", 10, 166, 5.4))),
    "falling": Pose(
        size=(157, 172), scale=1.08, hips=(70, 134), neck=(74, 106), head=(80, 84), tilt=-12,
        hands=(Hand((16, 124), 8, -66, layer="back"), Hand((136, 76), -8, 40, layer="back")),
        feet=(Foot((36, 152), -8, -50, sole=True), Foot((104, 158), 8, 24, sole=True)),
        face=Face(AFRAID, "scream", 0, -2), ears=(-24, 6), scarf=((64, 106), (36, 98), (30, 52)), tail=((78, 134), (126, 138), (143, 100)),
        over=(("dash", 10, 10, 10, 34, 128, 6, 128, 26, 148, 20, 148, 44, 6, 66, 6, 84),)),
    "small": Pose(
        size=(37, 60), scale=0.35, head_size=1.13, hips=(18.3, 48.2), neck=(18.4, 38.8), head=(18.8, 28.4),
        hands=(Hand((9.4, 46.4), 3, -160, layer="back"), Hand((28, 46.4), -3, 160)),
        feet=(Foot((14, 56.8), 0, toes=-1), Foot((23.4, 56.8), 0)),
        face=Face(Eyes(look=(0.2, 0)), "smile", 0.3), scarf=((14.6, 39.6), (10, 41.4), (6, 45.8))),
}
