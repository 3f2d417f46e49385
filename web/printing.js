// Printing: what a window shows, alone on a page that lies on its side.

/** Puts a copy of the window's client area where only the printer sees it, and opens the browser's print dialog. */
export function printWindow(window) {
  const place = document.getElementById("print");
  const { client: copy, width, height } = window.copy();
  for (const node of copy.querySelectorAll("[id]")) node.removeAttribute("id");
  for (const node of copy.querySelectorAll(".keys")) node.remove();
  // As large as fits both A4 and Letter with their margins.
  place.style.setProperty("--twip", `min(${257 / width}mm, ${180 / height}mm)`);
  place.replaceChildren(copy);
  const clear = () => place.replaceChildren();
  addEventListener("afterprint", clear, { once: true });
  // The pictures of the copy are there when they are decoded.
  const decoded = [...copy.querySelectorAll("img")].map((image) => image.decode().catch(() => {}));
  Promise.all(decoded).then(() => print());
}
