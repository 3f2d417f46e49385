// Whether the server has another version of the page than the one that runs.

import { VERSION } from "./opening.js";

async function named(response) {
  return (await (await response).text()).match(/([0-9a-f]{16})\/main\.js/)?.[1] ?? VERSION;
}

/** Waits until a worker has kept its version, or has not been able to. */
function settled(worker) {
  return new Promise((resolve) => {
    const look = () => worker.state !== "installing" && resolve();
    worker.addEventListener("statechange", look);
    look();
  });
}

/** Has the worker keep the page for days without a network. */
export async function keepVersion() {
  await navigator.serviceWorker?.register("worker.js", { updateViaCache: "none" });
}

/** Has the worker take away what it keeps of versions before. */
export function forgetOthers() {
  navigator.serviceWorker?.controller?.postMessage(VERSION);
}

/**
 * Whether the next start will be one of another version. Asking brings that version: by the worker where there is one, and
 * otherwise into what the browser has kept of this address.
 */
export async function hasOther() {
  const { href } = location;
  if (!navigator.onLine) return false;
  if ((await named(fetch(href, { cache: "reload" }))) === VERSION) return false;
  const registration = await navigator.serviceWorker?.getRegistration();
  if (!registration?.active) return true;
  await registration.update();
  const coming = registration.installing ?? registration.waiting;
  if (coming) await settled(coming);
  return (await named(fetch(href))) !== VERSION;
}
