// The page's own dialogs: what the program asks, and the end of the game.

import { make } from "./dom.js";

/** Keeps Tab inside a dialog: behind its last element comes the first. */
function keepTab(dialog) {
  dialog.addEventListener("keydown", (event) => {
    if (event.key !== "Tab") return;
    const stops = [...dialog.querySelectorAll("button, input")].filter((node) => !node.disabled);
    const next = stops.indexOf(document.activeElement) + (event.shiftKey ? -1 : 1);
    stops.at(next % stops.length).focus();
    event.preventDefault();
  });
}

/**
 * Asks with a list of buttons; the first is the default one, and the last is meant by Esc and by the cross. Comes back with
 * the number of the button. `content` is a text or a node.
 */
export function ask(title, content, buttons) {
  const dialog = make("dialog", document.body, { className: "message" });
  dialog.setAttribute("aria-label", title);
  const head = make("header", dialog);
  make("h1", head, { textContent: title });
  const cross = make("button", head, { type: "button", className: "cross", textContent: "✕" });
  cross.setAttribute("aria-label", "Cerrar");
  const body = make("div", dialog, { className: "body" });
  if (typeof content === "string") make("p", body, { textContent: content });
  else body.append(content);
  const row = make("div", body, { className: "buttons" });
  keepTab(dialog);
  return new Promise((resolve) => {
    const close = (number) => {
      dialog.close();
      dialog.remove();
      resolve(number);
    };
    const last = buttons.length - 1;
    buttons.forEach((caption, i) => {
      const button = make("button", row, { type: "button", textContent: caption });
      button.addEventListener("click", () => close(i));
    });
    cross.addEventListener("click", () => close(last));
    dialog.addEventListener("cancel", (event) => {
      event.preventDefault();
      close(last);
    });
    dialog.showModal();
    row.firstChild.focus({ preventScroll: true });
    body.scrollTop = 0;
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
