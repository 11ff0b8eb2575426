// How large the telephone is, and that all of it can be seen and pressed: in windows, on touch screens, zoomed in.

import assert from "node:assert/strict";
import { after, before, describe, test } from "node:test";
import { openBrowser, Tab } from "./support/browser.js";
import { LIMIT, Phone, SUITE_LIMIT } from "./support/phone.js";

const SMALLEST_KEY = 24;
const PANELS = { plain: [240, 128], narrow: [168, 128], wp1: [208, 42] };

const touch = (width, height, deviceScaleFactor) =>
  ({ viewport: { width, height }, deviceScaleFactor, isMobile: true, hasTouch: true });
const desktop = (width, height, deviceScaleFactor = 1) => ({ viewport: { width, height }, deviceScaleFactor });

/** In the page, in CSS pixels. */
function measure() {
  const box = (element) => {
    const { left, top, right, bottom, width, height } = element.getBoundingClientRect();
    return { left, top, right, bottom, width, height };
  };
  const { clientWidth, clientHeight, scrollWidth, scrollHeight } = document.documentElement;
  return {
    window: { clientWidth, clientHeight, scrollWidth, scrollHeight }, ratio: devicePixelRatio,
    panel: box(document.getElementById("panel")), phone: box(document.querySelector(".phone")),
    keys: [...document.querySelectorAll("[data-key]")].map((key) => ({ name: key.dataset.key, ...box(key) })),
    letters: parseFloat(getComputedStyle(document.querySelector(".dial i")).fontSize),
  };
}

const key = (figures, name) => figures.keys.find((each) => each.name === name);

function fitsWidth({ window, phone, keys, panel }) {
  assert.ok(window.scrollWidth <= window.clientWidth, "nothing is wider than the window");
  for (const { name, left, right } of [{ name: "phone", ...phone }, { name: "panel", ...panel }, ...keys])
    assert.ok(left >= 0 && right <= window.clientWidth + 0.01, `${name} is within the window: ${left} to ${right}`);
}

function fitsHeight({ window, phone }) {
  assert.ok(phone.top >= 0 && phone.bottom <= window.clientHeight, `${phone.top} to ${phone.bottom}`);
}

function canBePressed({ keys }) {
  for (const { name, width, height } of keys)
    assert.ok(width >= SMALLEST_KEY && height >= SMALLEST_KEY, `${name} is ${width} x ${height}`);
}

function hasEvenPixels({ panel, ratio }, [width, height]) {
  const pixel = (panel.width * ratio) / width;
  assert.ok(Math.abs(pixel - Math.round(pixel)) < 0.01, `a panel pixel is ${pixel} device pixels wide`);
  assert.ok(Math.abs((panel.height * ratio) / height - pixel) < 0.01, "it is as high as it is wide");
  return pixel / ratio;
}

describe("the size", SUITE_LIMIT, () => {
  let browser;
  const phones = {};

  before(async () => {
    browser = await openBrowser();
    for (const variant of Object.keys(PANELS)) phones[variant] = await Phone.start({ variant });
  });

  after(async () => {
    await browser.close();
    await Promise.all(Object.values(phones).map((phone) => phone.stop()));
  });

  async function open(t, variant, options) {
    const tab = await Tab.open(browser, phones[variant].url, options);
    t.after(() => tab.close());
    await tab.openMenu();
    return tab;
  }

  for (const variant of Object.keys(PANELS)) {
    for (const [width, height, ratio] of [[320, 568, 2], [360, 640, 3], [390, 780, 3], [430, 932, 3], [430, 860, 2.625]]) {
      test(`${variant} fits a touch screen of ${width} pixels`, LIMIT, async (t) => {
        const figures = await (await open(t, variant, touch(width, height, ratio))).page.evaluate(measure);
        assert.equal(figures.window.clientWidth, width);
        fitsWidth(figures);
        fitsHeight(figures);
        canBePressed(figures);
        assert.ok(hasEvenPixels(figures, PANELS[variant]) >= 1);
      });
    }

    test(`${variant} fits a touch screen held on its side`, LIMIT, async (t) => {
      const figures = await (await open(t, variant, touch(844, 390, 3))).page.evaluate(measure);
      fitsWidth(figures);
      fitsHeight(figures);
      canBePressed(figures);
      assert.ok(hasEvenPixels(figures, PANELS[variant]) > 1);
    });

    for (const [width, height] of [[1366, 650], [1024, 600], [1280, 720], [1920, 1080]]) {
      test(`${variant} fits a window of ${width} x ${height} with a full panel`, LIMIT, async (t) => {
        const figures = await (await open(t, variant, desktop(width, height))).page.evaluate(measure);
        fitsWidth(figures);
        fitsHeight(figures);
        canBePressed(figures);
        assert.equal(hasEvenPixels(figures, PANELS[variant]), 2);
      });
    }
  }

  test("turning the screen lays it out anew", LIMIT, async (t) => {
    const tab = await open(t, "plain", touch(390, 844, 3));
    await tab.page.setViewportSize({ width: 844, height: 390 });
    await tab.page.waitForSelector('[data-layout="beside"]');
    fitsHeight(await tab.page.evaluate(measure));
    await tab.page.setViewportSize({ width: 390, height: 844 });
    await tab.page.waitForSelector('[data-layout="tall"]');
    fitsWidth(await tab.page.evaluate(measure));
  });

  /** As the browser's zoom does it: fewer pixels of CSS, each of more pixels of the device. */
  async function zoom(tab, width, height, factor) {
    const session = await tab.context.newCDPSession(tab.page);
    await session.send("Emulation.setDeviceMetricsOverride", {
      width: Math.floor(width / factor), height: Math.floor(height / factor), deviceScaleFactor: factor, mobile: false,
    });
    await tab.page.waitForFunction((ratio) => Math.abs(devicePixelRatio - ratio) < 0.01, factor);
    await tab.page.evaluate(() => new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done))));
    return tab.page.evaluate(measure);
  }

  for (const [width, height] of [[1280, 720], [1366, 650], [1920, 1080]]) {
    test(`everything grows with the zoom in a window of ${width} x ${height}`, LIMIT, async (t) => {
      const tab = await open(t, "plain", desktop(width, height));
      const before = await tab.page.evaluate(measure);
      let last = before;
      for (const factor of [1.1, 1.5, 2]) {
        const zoomed = await zoom(tab, width, height, factor);
        fitsWidth(zoomed);
        hasEvenPixels(zoomed, PANELS.plain);
        for (const name of ["5", "ok", "hook"])
          assert.ok(key(zoomed, name).width * factor >= 0.99 * factor * key(before, name).width, `${name} at ${factor}`);
        assert.ok(zoomed.letters * factor >= 0.99 * factor * before.letters);
        assert.ok(zoomed.panel.width * factor >= 0.999 * last.panel.width * last.ratio, `the panel at ${factor}`);
        last = zoomed;
      }
      assert.ok(last.panel.width * 2 >= 1.99 * before.panel.width, "the panel is twice as large at 200 %");
    });
  }

  test("a page that is opened zoomed in is as large as one that is zoomed in later", LIMIT, async (t) => {
    const figures = await (await open(t, "plain", desktop(640, 360, 2))).page.evaluate(measure);
    fitsWidth(figures);
    assert.equal(figures.panel.width, 480);
    assert.equal(key(figures, "5").width, 76);
    assert.ok(figures.window.scrollHeight > figures.window.clientHeight, "the rest can be scrolled to");
  });

  test("at 400 % it can be used without scrolling sideways", LIMIT, async (t) => {
    const tab = await open(t, "plain", desktop(320, 256, 4));
    const figures = await tab.page.evaluate(measure);
    fitsWidth(figures);
    canBePressed(figures);
    await tab.button("down").click();
    await tab.selects("Contacts");
    await tab.button("up").click();
    await tab.selects("Call log");
  });

  test("it grows with the browser's text size", LIMIT, async (t) => {
    const tab = await open(t, "plain", desktop(1920, 1080));
    await tab.page.addStyleTag({ content: "html { font-size: 24px }" });
    await tab.page.evaluate(() => window.dispatchEvent(new Event("resize")));
    const figures = await tab.page.evaluate(measure);
    assert.equal(figures.panel.width, 720);
    assert.equal(key(figures, "5").width, 114);
  });
});
