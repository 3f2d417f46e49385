// A window as a picture, for the system to pass on.

import { fileOf, pictureOf } from "./pictures.js";

const WIDTH = 1600; // pixels
const PIXEL = 15; // twips

const FONTS = { sans: "Zarpi Sans", arial: "Zarpi Sans", mono: "Zarpi Mono", serif: "Zarpi Serif" };

/** Draws an element; `scale` is the length of a twip. Buttons and their plates are no part of a picture. */
const DRAWINGS = {
  async picture(pen, state, scale) {
    const picture = pictureOf(state);
    if (picture === undefined) return;
    const image = new Image();
    image.src = fileOf(picture, scale / devicePixelRatio);
    await image.decode();
    const [width, height] = [picture.width * PIXEL * scale, picture.height * PIXEL * scale];
    pen.save();
    pen.beginPath();
    pen.rect(state.left * scale, state.top * scale, state.width * scale, state.height * scale);
    pen.clip();
    pen.drawImage(image, state.left * scale, state.top * scale, width, height);
    pen.restore();
  },
  async text(pen, state, scale) {
    pen.fillStyle = state.back ?? "white";
    pen.fillRect(state.left * scale, state.top * scale, state.width * scale, state.height * scale);
    pen.fillStyle = state.fore ?? "black";
    const width = state.width - 120;
    let size = state.size;
    do {
      pen.font = `${state.bold ? "bold " : ""}${size * scale}px "${FONTS[state.font]}"`;
      size -= 10;
    } while (pen.measureText(state.text).width > width * scale && size > 100);
    pen.textAlign = "center";
    pen.textBaseline = "middle";
    pen.fillText(state.text, (state.left + state.width / 2) * scale, (state.top + state.height / 2) * scale);
  },
};
const KINDS = { PictureBox: "picture", Image: "picture", TextBox: "text" };

/** Has the system pass on a window's content as a picture of this title. */
export async function share(elements, title) {
  const drawn = elements.filter(({ kind }) => kind in KINDS);
  const [left, top] = [Math.min(...drawn.map((one) => one.left)), Math.min(...drawn.map((one) => one.top))];
  const right = Math.max(...drawn.map((one) => one.left + one.width));
  const bottom = Math.max(...drawn.map((one) => one.top + one.height));
  const scale = WIDTH / (right - left);
  const canvas = document.createElement("canvas");
  canvas.width = WIDTH;
  canvas.height = Math.round((bottom - top) * scale);
  const pen = canvas.getContext("2d");
  pen.fillStyle = "white";
  pen.fillRect(0, 0, canvas.width, canvas.height);
  pen.translate(-left * scale, -top * scale);
  for (const state of drawn) await DRAWINGS[KINDS[state.kind]](pen, state, scale);
  const bytes = await new Promise((done) => canvas.toBlob(done, "image/png"));
  const files = [new File([bytes], "diploma.png", { type: "image/png" })];
  await navigator.share({ files, title }).catch(() => {}); // the player has thought better of it
}
