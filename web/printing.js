// Printing: what a window shows, alone on a page that lies on its side.

/** Puts a copy of the window's client area where only the printer sees it; it goes when it has been printed. */
export function placeForPrinter(window) {
  const place = document.getElementById("print");
  const { client: copy, width, height } = window.copy();
  for (const node of copy.querySelectorAll("[id]")) node.removeAttribute("id");
  for (const node of copy.querySelectorAll(".keys")) node.remove();
  // As large as fits both A4 and Letter with their margins.
  place.style.setProperty("--twip", `min(${257 / width}mm, ${180 / height}mm)`);
  place.replaceChildren(copy);
  addEventListener("afterprint", () => place.replaceChildren(), { once: true });
  // The pictures of the copy are there when they are decoded.
  return Promise.all([...copy.querySelectorAll("img")].map((image) => image.decode().catch(() => {})));
}
