// The pictures: which there are, how large they are, and which file of each the screen asks for.

let known = {};

/** `pictures` maps each name to its width and height, in pixels of 15 twips, and its files of single and double size. */
export function setPictures(pictures) {
  known = pictures;
}

function pictureInFile(file) {
  return known[file.replace(/\.bmp$/, "")];
}

/** The picture of an element; undefined for a file that is not there. */
export function pictureOf(state) {
  return state.picture === "" ? known[state.stored] : pictureInFile(state.picture);
}

/** Width and height of a file that the program opens by name; undefined for one that is not there. */
export function pictureSize(file) {
  return pictureInFile(file);
}

export function pictureNamed(name) {
  return known[name];
}

/** The file of a picture that is sharp where a twip is `twip` pixels of the page long. */
export function fileOf(picture, twip) {
  const pixels = twip * 15 * devicePixelRatio;
  return pixels > 1.05 && picture.double ? picture.double : picture.single;
}

const loaded = new Map();

/** Loads a file once; what was loaded stays, so that an animation never waits for the network. */
export function load(file) {
  if (!loaded.has(file)) {
    const image = new Image();
    image.src = file;
    loaded.set(file, image.decode().catch(() => loaded.delete(file)));
  }
  return loaded.get(file);
}

/** Loads all pictures, one after the other. */
export async function loadAll(twip) {
  for (const picture of Object.values(known)) await load(fileOf(picture, twip));
}
