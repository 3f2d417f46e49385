// Key presses as the program takes them: a code, a character, and whether Ctrl was held. Of a key that types a character
// the program knows the code itself.

const CODES = {
  ...{ Tab: 9, Enter: 13, Escape: 27, PageUp: 33, PageDown: 34, End: 35, Home: 36 },
  ...{ ArrowLeft: 37, ArrowUp: 38, ArrowRight: 39, ArrowDown: 40 },
};
const CHARACTERS = { Enter: 13, Escape: 27, Backspace: 8 };
const F1 = 112;
const SHIFT_TAB = 265;

/** Shortcuts that browsers keep for themselves. */
const RESERVED = /^Ctrl\+[NTW]$/;

/** The shortcut of a menu entry as it works in a browser. */
export function working(shortcut) {
  return RESERVED.test(shortcut) ? shortcut.replace("Ctrl", "Mayús+Alt") : shortcut;
}

/** A text of the game that tells a shortcut, as it is true in a browser; `byFingers`: where there is no keyboard. */
export function inBrowser(text, byFingers) {
  if (byFingers) return text.replace(/ o Ctrl \+ [NTW]/, ", en el menú Juego");
  return text.replace(/Ctrl \+ ([NTW])/, "Mayús+Alt+$1, o el menú Juego");
}

/** The key of a character. */
export function keyOfCharacter(character) {
  return [0, character.charCodeAt(0), 0];
}

/** The letter of a shortcut: held with Ctrl, or with Shift and Alt where the browser keeps Ctrl for itself. */
export function shortcutLetter(event) {
  const meant = event.ctrlKey !== (event.shiftKey && event.altKey) && !(event.ctrlKey && event.altKey) && !event.metaKey;
  const letter = /^Key[A-Z]$/.test(event.code) && event.altKey ? event.code.slice(3) : event.key.toUpperCase();
  return meant && /^[A-Z]$/.test(letter) ? letter : null;
}

/** The key of a press; null for one that types nothing and means nothing here, or waits for its letter. */
export function keyOfPress(event) {
  const letter = shortcutLetter(event);
  if (letter !== null) return [letter.charCodeAt(0), letter.charCodeAt(0) - 64, 1];
  const typesWithAlt = event.getModifierState("AltGraph");
  if (event.metaKey || ((event.altKey || event.ctrlKey) && !typesWithAlt)) return null;
  if (event.key.length === 1) return keyOfCharacter(event.key);
  if (event.key === "Tab" && event.shiftKey) return [SHIFT_TAB, 0, 0];
  const number = event.key.match(/^F([1-9]|1[0-2])$/)?.[1];
  const code = number ? F1 + Number(number) - 1 : (CODES[event.key] ?? 0);
  const character = CHARACTERS[event.key] ?? 0;
  return code === 0 && character === 0 ? null : [code, character, 0];
}
