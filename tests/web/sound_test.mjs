// What is heard, beside each other: in place of the music a tone, in place of the sounds silence.

import assert from "node:assert/strict";
import { test } from "node:test";
import { fixed } from "./page.mjs";
import { enter, pause, WINNING_SEED } from "./setting.mjs";
import { playToTheFall } from "./solver.mjs";

const RATE = 44100;
const TONE = 0.25; // of full scale

function wave(seconds, loudness) {
  const samples = Int16Array.from({ length: seconds * RATE }, (_, i) => 32767 * loudness * Math.sin(i * 0.25));
  const head = Buffer.alloc(44);
  head.write("RIFF    WAVEfmt ", "latin1");
  head.writeUInt32LE(36 + samples.byteLength, 4);
  [16, 1 | (1 << 16), RATE, 2 * RATE, 2 | (16 << 16)].forEach((number, i) => head.writeUInt32LE(number, 16 + 4 * i));
  head.write("data", 36, "latin1");
  head.writeUInt32LE(samples.byteLength, 40);
  return Buffer.concat([head, Buffer.from(samples.buffer)]);
}

/** In the page: notes the peak of each 256 frames of what goes to the loudspeakers. */
const LISTEN = `{
  globalThis.peaks = [];
  const connect = AudioNode.prototype.connect;
  AudioNode.prototype.connect = function (target, ...rest) {
    if (target === this.context.destination) {
      const ear = this.context.createScriptProcessor(256, 1, 1);
      ear.onaudioprocess = ({ inputBuffer }) => globalThis.peaks.push(Math.max(...inputBuffer.getChannelData(0).map(Math.abs)));
      connect.call(this, ear);
      connect.call(ear, this.context.destination);
      (globalThis.ears ??= []).push(ear);
    }
    return connect.call(this, target, ...rest);
  };
}`;

/** What has been heard since the last time. */
const heard = (player) => player.page.evaluate(() => globalThis.peaks.splice(0).filter((peak) => peak > 0));

test("music goes back 10 dB for the fall, comes up again, and fades out when it is closed", async () => {
  const player = await enter({ prepare: `${fixed(WINNING_SEED)};${LISTEN}` });
  const { page } = player;
  await page.setBypassServiceWorker(true);
  await page.setRequestInterception(true);
  const [tone, silence] = [wave(120, TONE), wave(1, 0)];
  page.on("request", (request) => {
    const folder = /\/(music|sounds)\//.exec(request.url())?.[1];
    if (folder === undefined) return request.continue();
    return request.respond({ contentType: "audio/wav", body: folder === "music" ? tone : silence });
  });
  await player.startGame("Ana");
  await page.waitForFunction((loud) => globalThis.peaks.some((peak) => peak > loud), {}, 0.9 * TONE);
  await player.click("Zarpi.cmdMostrar");
  await playToTheFall(player, player.mouse);
  await pause(3000);
  const levels = await heard(player);
  assert.ok(Math.min(...levels.slice(-50)) > 0.97 * TONE, "up again");
  const back = levels.filter((level) => Math.abs(level / TONE - 10 ** (-10 / 20)) < 0.02).length;
  assert.ok(back * 256 / RATE > 0.5, `${back} blocks 10 dB down`);
  await player.shortcut("D");
  await player.shortcut("N");
  await pause(1500);
  const fading = await heard(player);
  assert.ok(fading.at(-1) < TONE / 500, `cut off at ${fading.at(-1)}`);
});
