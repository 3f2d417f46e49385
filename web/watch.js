// Stands in index.html itself, before the main script: says why the page does not start where its main script does not come.
// What has started says so by the attribute "data-started" of the document.

const root = document.documentElement;
const SLOW = 10000; // milliseconds

function tell(why) {
  const show = () => {
    const state = document.getElementById("state");
    if (state === null || root.dataset.started) return;
    state.textContent = why;
    root.className = "failed";
  };
  if (document.readyState === "loading") addEventListener("DOMContentLoaded", show);
  else show();
}

/** Asks the server for what the page starts with, past all that the browser has kept of it, and starts again. */
function startAgain(event) {
  event.preventDefault();
  const files = [...document.querySelectorAll("head > script[src], head > [rel=preload]")].map(({ src, href }) => src || href);
  const asked = [location.href, ...files].map((address) => fetch(address, { cache: "reload" }).then((response) => response.blob()));
  const late = new Promise((resolve) => setTimeout(resolve, SLOW));
  tell("Se pide otra vez…");
  Promise.race([Promise.allSettled(asked), late]).then(() => location.reload());
}

/** Where the server has another version by now, and this one no more, that is the one to start. */
async function startOther(script) {
  const text = await (await fetch(location.href, { cache: "reload" })).text();
  if (!text.includes("/main.js") || text.includes(script.getAttribute("src")) || sessionStorage.zarpiOther) return;
  sessionStorage.zarpiOther = "1";
  location.reload();
}

addEventListener("error", ({ target, message }) => {
  if (target.localName === "script") {
    tell("No ha llegado entero el archivo «main.js». Puede que la conexión o el servidor fallen.");
    startOther(target).catch(() => {});
  } else if (message) {
    tell(`El juego no puede empezar en este navegador. Prueba con una versión más reciente de Firefox, Chrome, Edge o Safari. (${message})`);
  }
}, true);
addEventListener("DOMContentLoaded", () => {
  document.getElementById("again")?.addEventListener("click", startAgain);
  if (!("noModule" in HTMLScriptElement.prototype)) tell("Este navegador es demasiado antiguo para el juego. Prueba con una versión más reciente de Firefox, Chrome, Edge o Safari.");
});
setTimeout(() => root.dataset.arrived || tell("El servidor tarda en dar el archivo «main.js». Se sigue esperando…"), SLOW);
