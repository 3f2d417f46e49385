// The page's own dialogs: what the program asks, and the end of the game.

import { make } from "./dom.js";

/**
 * Asks with a list of buttons; the first is the default one, and the last is meant by Esc. Comes back with the number of
 * the button. `content` is a text or a node.
 */
export function ask(title, content, buttons) {
  const dialog = make("dialog", document.body, { className: "message" });
  dialog.setAttribute("aria-label", title);
  make("h1", dialog, { textContent: title });
  if (typeof content === "string") make("p", dialog, { textContent: content });
  else dialog.append(content);
  const row = make("div", dialog, { className: "buttons" });
  return new Promise((resolve) => {
    const close = (number) => {
      dialog.close();
      dialog.remove();
      resolve(number);
    };
    buttons.forEach((caption, i) => {
      const button = make("button", row, { type: "button", textContent: caption });
      button.addEventListener("click", () => close(i));
    });
    dialog.addEventListener("cancel", (event) => {
      event.preventDefault();
      close(buttons.length - 1);
    });
    dialog.showModal();
    row.firstChild.focus();
    dialog.scrollTop = 0;
  });
}

/** Fills the page with a last word and a button to start again. */
export function showEnd(title, text) {
  for (const dialog of document.querySelectorAll("dialog")) dialog.remove();
  const desk = document.getElementById("desk");
  desk.replaceChildren();
  desk.className = "end";
  make("h1", desk, { textContent: title });
  if (text) make("p", desk, { textContent: text });
  const again = make("button", desk, { type: "button", textContent: "Jugar otra vez" });
  again.addEventListener("click", () => location.reload());
  again.focus();
}
