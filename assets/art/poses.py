"""All the poses of Zarpi. What is in no window's sight is left empty: see README.md on the crops of 8 and 13 to 17."""

from __future__ import annotations

from dataclasses import replace

from pose import Eyes, Face, Foot, Hand, Pose

LEDGE = (105, 171)
GROUND = (212, 223)
SOLE = 170            # where a sole rests so that its outline ends with the picture

AFRAID = Eyes(size=1.1, pupil=0.52, slant=-0.3, brow=1)
WIDE = Eyes(size=1.06, pupil=0.72, look=(0.3, 0.1), slant=-0.22, brow=1)
CROSS = Eyes(lid=0.34, slant=0.3, brow=-3, pupil=0.86)
FURIOUS = Eyes(lid=0.3, slant=0.42, brow=-3, pupil=0.7, size=1.08)

STANDING = Pose(
    size=LEDGE, hips=(54, 143), neck=(51, 111), head=(54, 84), tilt=5,
    hands=(Hand((23, 140), 5, -172, layer="back"), Hand((69, 139), kind="fist", elbow=(90, 127), angle=225)),
    feet=(Foot((35, SOLE), -1, toes=-1, knee=(42, 155)), Foot((63, SOLE), 0)),
    face=Face(Eyes(look=(0.3, 0)), "smile", 0.5),
    scarf=((42, 112), (26, 118), (13, 130)), tail=((44, 148), (22, 162), (9, 152)), under=(("plate",),))

POSES: dict[str, Pose] = {
    "Zarpi1": STANDING,
    "Zarpi2": Pose(
        size=LEDGE, scale=0.95, hips=(46, 140), neck=(38, 112), head=(46, 87), tilt=-9,
        hands=(Hand((15, 119), -6, -80, layer="back"), Hand((72, 128), -7, 130, "fist")),
        feet=(Foot((60, SOLE - 3), 3, -16), Foot((83, SOLE - 3), -3, -16)),
        face=Face(Eyes(lid=0.22, slant=0.3, brow=0, look=(-0.5, 0)), "grit", 0.25),
        ears=(-4, 26), scarf=((44, 112), (60, 108), (76, 114)), tail=((36, 145), (25, 156), (15, 154)), under=(("plate",),),
        over=(("puff", 94, 164, 5.4), ("sweat", 85, 64, 40))),
    "Zarpi3": Pose(
        size=LEDGE, scale=0.95, hips=(42, 139), neck=(49, 112), head=(56, 85), tilt=10,
        hands=(Hand((15, 128), 8, -75, layer="back"), Hand((93, 126), 0, 80, elbow=(74, 132))),
        feet=(Foot((27, 164), -3, 24), Foot((75, 160), -7, -22)),
        face=Face(WIDE, "oh", 0.7), ears=(-14, -22),
        scarf=((42, 112), (27, 103), (11, 97)), tail=((34, 143), (22, 150), (12, 146)), under=(("plate",),),
        over=(("sweat", 18, 62, -40), ("dash", 4, 158, 12, 158, 4, 165, 10, 165))),
    "Zarpi5": Pose(
        size=LEDGE, scale=0.95, hips=(48, 134), neck=(46, 106), head=(50, 79), tilt=-9,
        hands=(Hand((13, 119), 4, -64, layer="back"), Hand((91, 118), 0, 60, elbow=(72, 122))),
        feet=(Foot((41, 163), -2), Foot((77, 148), -6, -26)),
        face=Face(replace(AFRAID, pupil=0.6, look=(0.7, 0.7)), "wobble", 0.5),
        ears=(-8, 24), scarf=((37, 109), (30, 125), (18, 135)), tail=((37, 139), (21, 147), (13, 139)), under=(("plate", 1),),
        over=(("rim",), ("arcs", 16, 119, 17, -128, -72, 1), ("arcs", 84, 119, 20, -90, -42, 1), ("sweat", 87, 57, 35))),
    "Zarpi6": Pose(
        size=LEDGE, scale=0.95, hips=(50, 124), neck=(52, 95), head=(55, 69), tilt=6,
        hands=(Hand((12, 98), 0, -30, elbow=(29, 112), layer="back"), Hand((93, 102), 0, 30, elbow=(78, 114))),
        feet=(Foot((19, 148), 0, 62, knee=(38, 150)), Foot((83, 144), 0, -30, knee=(72, 128))),
        face=Face(replace(AFRAID, look=(0.2, 0.85)), "scream", 0.25, -1),
        ears=(-20, -10), scarf=((42, 94), (22, 82), (18, 44)), tail=((42, 128), (14, 132), (12, 116)), under=(("plate",),),
        over=(("sweat", 96, 40, 25), ("dash", 50, 160, 50, 167, 64, 156, 64, 166, 36, 162, 36, 167))),
    "Zarpi9": Pose(
        size=LEDGE, hips=(52, 150), neck=(53, 126), head=(54, 105), tilt=0, squash=(1.06, 0.92),
        hands=(Hand((16, 152), -5, -140, "fist", "back"), Hand((90, 152), 5, 140, "fist")),
        feet=(Foot((34, SOLE), 4, toes=-1), Foot((70, SOLE), -4)),
        face=Face(Eyes("open", look=(0.1, -0.8)), "grin", 0.3), ears=(30, 30),
        scarf=((42, 128), (24, 133), (6, 129)), tail=((38, 154), (24, 160), (12, 154)), under=(("plate",),)),
    "Zarpi10": Pose(
        size=LEDGE, scale=0.9, hips=(52, 124), neck=(52, 97), head=(53, 70), tilt=-3, squash=(0.97, 1.04),
        hands=(Hand((12, 62), 0, -10, elbow=(24, 96), layer="back"), Hand((94, 60), 0, 10, elbow=(81, 95), layer="back")),
        feet=(Foot((33, 146), 6, 26, toes=-1), Foot((74, 149), -6, 26)),
        face=Face(Eyes("happy"), "cheer", 0.25), ears=(-6, -4),
        scarf=((44, 100), (34, 112), (24, 126)), tail=((60, 124), (82, 132), (92, 112)),
        under=(("plate",), ("shadow", 53, 167, 22)), over=(("dash", 38, 154, 38, 161, 66, 157, 66, 162),)),
    "Zarpi11": Pose(
        size=LEDGE, scale=0.95, hips=(42, 134), neck=(45, 106), head=(54, 80), tilt=8, squash=(0.96, 1.05),
        hands=(Hand((7.8, 109), 0, 0, "press", elbow=(22, 120)), Hand((7.8, 80), 0, 0, "press", "back", elbow=(28, 100))),
        feet=(Foot((2.6, 138), 6, 90, toes=-1), Foot((2.6, 163), 5, 90, toes=-1)),
        face=Face(replace(AFRAID, look=(0.6, 0.6)), "scream", 0.5, -2), ears=(-8, -8),
        scarf=((54, 109), (76, 101), (97, 102)), tail=((48, 136), (78, 148), (92, 122)),
        under=(("plate", 11),), over=(("sweat", 15, 50, -30), ("sweat", 97, 70, 30))),
    "Zarpi12": Pose(
        size=LEDGE, scale=0.95, hips=(36, 143), neck=(38, 116), head=(53, 93), tilt=-5, squash=(1.04, 0.96),
        hands=(Hand((7.8, 116), 4, 0, "press", "back"), Hand((7.8, 130), 6, 0, "press")),
        feet=(Foot((2.6, 143), 10, 90, toes=-1), Foot((2.6, 161), 8, 90, toes=-1)),
        face=Face(Eyes("tight"), "grit", -0.45), ears=(62, 52),
        scarf=((48, 120), (66, 124), (80, 136)), tail=((42, 142), (74, 160), (76, 134)),
        under=(("plate", 11),), over=(("sweat", 88, 48, 30), ("arcs", 50, 130, 42, -30, 12))),
    "Zarpi14": Pose(
        size=LEDGE, hips=(52, 143), neck=(52, 111), head=(53, 83), tilt=-4,
        hands=(Hand((74, 123), 0, 70, "fist", elbow=(26, 140)), Hand((31, 123), 0, -70, "fist", elbow=(79, 140))),
        feet=(Foot((40, SOLE), -1, toes=-1), Foot((66, 166), 1, -24)),
        face=Face(CROSS, "frown", 0), ears=(24, 24),
        scarf=((42, 112), (26, 110), (11, 118)), tail=((38, 146), (20, 154), (14, 140)), under=(("plate",),),
        over=(("cross", 53, 45, 0.85), ("arcs", 72, 161, 12, -50, 0))),
    "Zarpi8": Pose(
        size=GROUND, scale=1.06, hips=(96, 166), neck=(96, 143), head=(96, 116), squash=(1.1, 0.88),
        hands=(Hand((37, 119), -6, -50, layer="back"), Hand((155, 119), 6, 50, layer="back")),
        feet=(Foot((62, 177), -2.5, -16, sole=True), Foot((130, 177), 2.5, 16, sole=True)),
        face=Face(Eyes("tight"), "shout", 0), ears=(30, 30), scarf=((86, 145), (63, 154), (39, 143)),
        under=(("bang", 95, 110, 88, 57, 13, 182), ("puff", 28, 168, 15), ("puff", 162, 168, 14)),
        over=(("puff", 19, 178, 9), ("puff", 171, 179, 8), ("star", 36, 46, 11, -100), ("star", 156, 52, 10, -75),
              ("crack", 96, 184, 70))),
    "Zarpi13": Pose(
        size=GROUND, scale=0.9, hips=(74, 154), neck=(72, 129), head=(74, 107), tilt=9,
        hands=(Hand((34, 159), 5, 190, layer="back"), Hand((114, 159), -5, 170, layer="back")),
        feet=(Foot((47, 169), -3, -14, sole=True), Foot((100, 169), 3, 14, sole=True)),
        face=Face(Eyes("dizzy"), "daze", 0.1), ears=(4, 66), scarf=((64, 130), (48, 137), (41, 151)),
        under=(("shadow", 74, 171, 50), ("orbit", 76, 66, 38, 11, 180, 360)),
        over=(("orbit", 76, 66, 38, 11, 0, 180), ("star", 40, 61, 9, -100), ("star", 108, 61, 8, -70), ("star", 81, 77, 10))),
    "Zarpi15": Pose(
        size=GROUND, scale=1.5, hips=(88, 163), neck=(88, 113), head=(88, 72),
        hands=(Hand((21, 76), 0, -4, "fist", elbow=(22, 132)), Hand((155, 72), 0, 4, "fist", elbow=(154, 130))),
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
        hands=(Hand((16, 124), 8, -66, layer="back"), Hand((139, 93), 0, 35, elbow=(117, 113), layer="back")),
        feet=(Foot((36, 152), -8, -50, sole=True), Foot((104, 158), 8, 24, sole=True)),
        face=Face(AFRAID, "scream", 0, -2), ears=(-24, 6), scarf=((64, 106), (36, 98), (30, 52)), tail=((78, 134), (122, 148), (147, 122)),
        over=(("dash", 10, 10, 10, 34, 128, 6, 128, 26, 148, 20, 148, 44, 6, 66, 6, 84),)),
    "small": Pose(
        size=(37, 60), scale=0.35, head_size=1.13, hips=(18.3, 48.2), neck=(18.4, 38.8), head=(18.8, 28.4),
        hands=(Hand((9.4, 46.4), 3, -160, layer="back"), Hand((28, 46.4), -3, 160)),
        feet=(Foot((14, 56.8), 0, toes=-1), Foot((23.4, 56.8), 0)),
        face=Face(Eyes(look=(0.2, 0)), "smile", 0.3), scarf=((14.6, 39.6), (10, 41.4), (6, 45.8))),
}
