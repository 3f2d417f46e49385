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
        size=LEDGE, hips=(46, 139), neck=(37, 110), head=(44, 84), tilt=-9,
        hands=(Hand((10, 114), -6, -80, layer="back"), Hand((73, 127), -7, 130, "fist")),
        feet=(Foot((62, SOLE - 2), 3, -16), Foot((86, SOLE - 2), -3, -16)),
        face=Face(Eyes(lid=0.22, slant=0.3, brow=0, look=(-0.5, 0)), "grit", 0.25),
        ears=(-4, 26), scarf=((44, 110), (60, 106), (76, 112)), tail=((36, 144), (24, 156), (14, 154)),
        over=(("puff", 97, 164, 6), ("sweat", 84, 60, 40))),
    "Zarpi3": Pose(
        size=LEDGE, hips=(44, 136), neck=(54, 108), head=(63, 84), tilt=12,
        hands=(Hand((16, 120), 8, -70, layer="back"), Hand((93, 116), 7, 70)),
        feet=(Foot((26, SOLE - 3), -3, 24), Foot((76, 160), -7, -22)),
        face=Face(WIDE, "oh", 0.7), ears=(-14, -22),
        scarf=((44, 108), (28, 97), (10, 88)), tail=((34, 140), (22, 146), (12, 140)),
        over=(("sweat", 20, 62, -40), ("dash", 1, 152, 12, 152, 1, 161, 9, 161))),
    "Zarpi5": Pose(
        size=LEDGE, hips=(51, 133), neck=(50, 103), head=(56, 77), tilt=-9,
        hands=(Hand((15, 82), 10, -34, layer="back"), Hand((92, 101), -8, 60)),
        feet=(Foot((44, 163), -2), Foot((84, 146), -6, -26)),
        face=Face(Eyes(size=1.14, pupil=0.6, look=(0.7, 0.7), slant=-0.28, brow=3), "wobble", 0.5),
        ears=(-8, 24), scarf=((40, 106), (28, 114), (12, 116)), tail=((38, 138), (22, 142), (14, 132)),
        over=(("arcs", 17, 84, 15, 175, 262, 1), ("arcs", 86, 106, 14, -8, 75, 1), ("sweat", 92, 58, 35))),
    "Zarpi6": Pose(
        size=LEDGE, hips=(52, 124), neck=(52, 94), head=(53, 70), tilt=0,
        hands=(Hand((10, 106), -6, -70, layer="back"), Hand((95, 106), 6, 70)),
        feet=(Foot((30, 148), 6, 28, toes=-1), Foot((70, 160), -4, 12)),
        face=Face(Eyes(size=1.2, pupil=0.55, look=(0, 0.75), slant=-0.35, brow=3.5), "wobble", 0, 1),
        ears=(48, 48), scarf=((60, 96), (70, 106), (72, 122)), tail=((40, 130), (26, 138), (16, 130)),
        over=(("sweat", 20, 24, -25), ("sweat", 86, 26, 25), ("dash", 26, 160, 26, 167, 48, 164, 48, 169, 74, 166, 74, 170))),
    "Zarpi9": Pose(
        size=LEDGE, hips=(52, 150), neck=(53, 126), head=(55, 105), tilt=0, squash=(1.06, 0.92),
        hands=(Hand((16, 152), -5, -140, "fist", "back"), Hand((90, 152), 5, 140, "fist")),
        feet=(Foot((34, SOLE), 7, toes=-1), Foot((70, SOLE), -7)),
        face=Face(Eyes("open", look=(0.1, -0.8)), "grin", 0.3), ears=(30, 30),
        scarf=((42, 128), (24, 133), (6, 129)), tail=((38, 154), (24, 160), (12, 154))),
    "Zarpi10": Pose(
        size=LEDGE, hips=(52, 119), neck=(52, 89), head=(53, 66), tilt=-3, squash=(0.97, 1.04),
        hands=(Hand((12, 36), 9, -16, layer="back"), Hand((94, 34), -9, 16)),
        feet=(Foot((32, 143), 6, 26, toes=-1), Foot((74, 147), -6, 26)),
        face=Face(Eyes("happy"), "cheer", 0.25), ears=(-6, -4),
        scarf=((42, 90), (30, 102), (20, 120)), tail=((40, 122), (24, 128), (18, 142)),
        under=(("shadow", 53, 167, 22),), over=(("dash", 38, 152, 38, 161, 66, 155, 66, 162),)),
    "Zarpi11": Pose(
        size=LEDGE, hips=(52, 140), neck=(52, 108), head=(53, 82), tilt=3, squash=(0.96, 1.05),
        hands=(Hand((13, 52), 9, -12, layer="back"), Hand((93, 52), -9, 12)),
        feet=(Foot((40, SOLE), -5, toes=-1), Foot((66, SOLE), 5)),
        face=Face(AFRAID, "scream", 0.1, -2), ears=(-8, -8),
        scarf=((42, 110), (28, 104), (14, 108)), tail=((40, 144), (26, 146), (22, 134)),
        over=(("sweat", 12, 84, -30), ("sweat", 95, 84, 30))),
    "Zarpi12": Pose(
        size=LEDGE, hips=(49, 146), neck=(49, 118), head=(54, 94), tilt=-4, squash=(1.04, 0.96),
        hands=(Hand((22, 105), -9, 16, layer="face"), Hand((86, 104), 9, -22, layer="face")),
        feet=(Foot((42, SOLE), 8, toes=1), Foot((60, SOLE), -8, toes=-1)),
        face=Face(Eyes(size=1.16, pupil=0.62, look=(0.55, 0.6), slant=-0.4, brow=2), "oh", 0.25), ears=(66, 62),
        scarf=((40, 120), (26, 126), (16, 140)), tail=((38, 150), (26, 158), (20, 150)),
        over=(("sweat", 90, 56, 30), ("arcs", 49, 150, 30, 150, 200), ("arcs", 49, 150, 30, -20, 30))),
    "Zarpi14": Pose(
        size=LEDGE, hips=(52, 143), neck=(52, 111), head=(53, 84), tilt=-4,
        hands=(Hand((70, 127), 6, 80, "fist"), Hand((36, 124), -7, -80)),
        feet=(Foot((40, SOLE), -1, toes=-1), Foot((66, SOLE), 1, -24)),
        face=Face(CROSS, "frown", 0), ears=(24, 24),
        scarf=((42, 112), (26, 116), (14, 128)), tail=((38, 146), (24, 150), (20, 136)),
        over=(("cross", 53, 46, 0.85), ("arcs", 72, 164, 12, -50, 0))),
    "Zarpi8": Pose(
        size=GROUND, scale=1.25, hips=(96, 160), neck=(96, 132), head=(96, 112), squash=(1.12, 0.86),
        hands=(Hand((34, 112), 8, -60, layer="back"), Hand((158, 112), -8, 60, layer="back")),
        feet=(Foot((46, 176), -6, -16, sole=True), Foot((146, 176), 6, 16, sole=True)),
        face=Face(Eyes("tight"), "shout", 0), ears=(30, 30), scarf=((86, 120), (60, 86), (62, 60)),
        under=(("bang", 95, 104, 90, 58, 13, 182), ("puff", 22, 168, 15), ("puff", 168, 168, 14)),
        over=(("puff", 14, 178, 9), ("puff", 176, 179, 8), ("star", 36, 40, 11, -100), ("star", 158, 46, 10, -75),
              ("crack", 96, 184, 70))),
    "Zarpi13": Pose(
        size=GROUND, scale=1.15, hips=(74, 150), neck=(72, 119), head=(74, 92), tilt=9,
        hands=(Hand((24, 156), 6, 190, layer="back"), Hand((124, 156), -6, 170, layer="back")),
        feet=(Foot((40, 168), -4, -14, sole=True), Foot((106, 168), 4, 14, sole=True)),
        face=Face(Eyes("dizzy"), "daze", 0.1), ears=(4, 66), scarf=((62, 120), (42, 128), (34, 146)),
        under=(("shadow", 74, 170, 60),),
        over=(("orbit", 76, 42, 46, 13, 20, 330), ("star", 34, 36, 10, -100), ("star", 112, 34, 9, -70), ("star", 80, 57, 11))),
    "Zarpi15": Pose(
        size=GROUND, scale=1.5, hips=(88, 163), neck=(88, 113), head=(88, 72),
        hands=(Hand((20, 76), 10, -14, "fist"), Hand((156, 72), -10, 14, "fist")),
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
        size=GROUND, hips=(42, 142), neck=(44, 110), head=(45, 84), tilt=4, back=True,
        hands=(Hand((16, 136), 6, 200, "fist", "back"), Hand((72, 132), -6, 150, "fist")),
        feet=(Foot((28, 162), 3, 8, sole=True), Foot((57, SOLE), 0)),
        face=Face(turn=0), ears=(12, 40), scarf=((44, 112), (62, 116), (78, 110)), tail=((43, 152), (43, 143), (47, 134)),
        under=(("shadow", 44, 169, 26),), over=(("storm", 47, 20, 16), ("puff", 8, 165, 6))),
    "falling": Pose(
        size=(157, 172), scale=1.08, hips=(78, 130), neck=(79, 102), head=(80, 79), tilt=-12,
        hands=(Hand((22, 48), 10, -24, layer="back"), Hand((136, 46), -10, 24, layer="back")),
        feet=(Foot((34, 136), -10, -40, sole=True), Foot((122, 138), 10, 40, sole=True)),
        face=Face(AFRAID, "scream", 0, -2), ears=(-12, -12), scarf=((68, 102), (40, 100), (12, 82)), tail=((74, 140), (67, 152), (77, 160)),
        over=(("dash", 16, 4, 16, 22, 140, 4, 140, 20, 8, 84, 8, 104, 149, 84, 149, 104),)),
    "small": Pose(
        size=(37, 60), scale=0.39, head_size=1.12, hips=(18, 49), neck=(18.2, 39), head=(18.8, 27),
        hands=(Hand((8, 47), 3, -160, layer="back"), Hand((29, 47), -3, 160)),
        feet=(Foot((13.5, 58.6), 0, toes=-1), Foot((23.5, 58.6), 0)),
        face=Face(Eyes(look=(0.2, 0)), "smile", 0.3), scarf=((14, 40), (9, 42), (4.5, 47))),
}
