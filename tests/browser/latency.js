// From the key event in the page to the canvas with the row that the key has selected, over loopback. Prints median and
// 99th percentile: `BUILD_DIR=... node latency.js [PRESSES]`

import { openBrowser, Tab } from "./support/browser.js";
import { pause, percentile } from "./support/figures.js";
import { Phone } from "./support/phone.js";

const PRESSES = Number(process.argv[2] ?? 500);

/**
 * In the page: notes when a key goes down, and when a frame is drawn in which all pixels are right that tell the two
 * rows apart. Frames of a clock that ticks meanwhile do not count.
 */
function watch([first, second]) {
  const telling = [...first].flatMap((level, index) => (level === second[index] ? [] : [index]));
  const opacities = [0, 92, 168, 238];
  const shows = (image, levels) => telling.every((index) => image.data[4 * index + 3] === opacities[levels[index]]);
  const latencies = [];
  let pressed, wanted, missed = 0;
  window.addEventListener("keydown", (event) => {
    if (wanted) ++missed;
    pressed = event.timeStamp;
    wanted = event.key === "ArrowDown" ? second : first;
  }, true);
  const draw = CanvasRenderingContext2D.prototype.putImageData;
  CanvasRenderingContext2D.prototype.putImageData = function (image, ...place) {
    draw.call(this, image, ...place);
    if (!wanted || !shows(image, wanted)) return;
    latencies.push(performance.now() - pressed);
    wanted = undefined;
  };
  window.measured = () => ({ latencies, missed });
}

/** As long as a finger holds a key, or rests: in phase with nothing. */
const aWhile = () => 20 + 40 * Math.random();

async function levelsWith(tab, key) {
  await tab.page.keyboard.press(key);
  await pause(500);
  return tab.levels();
}

const browser = await openBrowser();
const phone = await Phone.start();
try {
  const tab = await Tab.open(browser, phone.url);
  await tab.openMenu();
  await tab.page.keyboard.press("Enter");
  await tab.shows("Missed");
  const second = await levelsWith(tab, "ArrowDown");
  const first = await levelsWith(tab, "ArrowUp");
  await tab.page.evaluate(watch, [first, second]);

  for (let press = 0; press < PRESSES; ++press) {
    await tab.page.keyboard.press(press % 2 ? "ArrowUp" : "ArrowDown", { delay: aWhile() });
    await pause(aWhile());
  }
  await pause(500);

  const { latencies, missed } = await tab.page.evaluate(() => window.measured());
  const [median, worst] = [0.5, 0.99].map((share) => percentile(latencies, share).toFixed(1));
  console.log(`key to canvas, ${latencies.length} presses: median ${median} ms, 99th percentile ${worst} ms`);
  if (missed) console.log(`${missed} presses were followed by another before their frame was drawn`);
} finally {
  await browser.close();
  await phone.stop();
}
