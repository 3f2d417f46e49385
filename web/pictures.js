// The pictures: which there are, how large they are, and which file of each the screen asks for.

let known = {};

/** `pictures` maps each name to its width and height, in pixels of 15 twips, and its files by their size, 1, 2 or 4 times that. */
export function setPictures(pictures) {
  known = pictures;
}

/** The picture of a file that the program opens by name; undefined for one that is not there. */
export function pictureInFile(file) {
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
  const sizes = Object.keys(picture.files).map(Number);
  return picture.files[sizes.find((size) => pixels <= 1.05 * size) ?? sizes.at(-1)];
}

const loaded = new Map();

function load(file) {
  const image = new Image();
  image.src = file;
  return image.decode().then(() => true, () => loaded.delete(file) && false);
}

/**
 * Loads a file of a picture once; what was loaded stays, so that an animation never waits for the network. Comes back
 * with the file, or with that of single size, which is always there, where the network does not give it.
 */
export async function available(picture, file) {
  if (!loaded.has(file)) loaded.set(file, load(file));
  return (await loaded.get(file)) ? file : picture.files[1];
}

/** Loads all pictures, one after the other. */
export async function loadAll(twip) {
  for (const picture of Object.values(known)) await available(picture, fileOf(picture, twip));
}

/** Asks for all pictures once more, for the worker to keep. */
export function keepAll(twip) {
  for (const picture of Object.values(known)) fetch(fileOf(picture, twip)).then((response) => response.blob()).catch(() => {});
}
