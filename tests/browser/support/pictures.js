// What is in a PNG file; the browser decodes it.

async function inBlankPage(browser, work, ...parameters) {
  const page = await browser.newPage();
  try {
    return await page.evaluate(work, ...parameters);
  } finally {
    await page.close();
  }
}

/** A picture of the panel as levels, one digit a pixel: 0 is white, 3 is black. */
export async function levelsOf(browser, png) {
  const { width, height, pixels } = await pixelsOf(browser, png);
  return { width, height, levels: pixels.map(([red]) => 3 - Math.round(red / 85)).join("") };
}

/**
 * The panel within a picture of the whole telephone, one digit a pixel of the panel: 3 where the middle of the pixel is
 * dark, 0 where it is light.
 */
export function darkOrLight(browser, png, area) {
  return inBlankPage(browser, async ([source, { x, y, scale, width, height }]) => {
    const image = new Image();
    image.src = source;
    await image.decode();
    const canvas = new OffscreenCanvas(image.width, image.height);
    const pen = canvas.getContext("2d");
    pen.drawImage(image, 0, 0);
    const { data } = pen.getImageData(0, 0, image.width, image.height);
    let levels = "";
    for (let row = 0; row < height; ++row) {
      for (let column = 0; column < width; ++column) {
        const px = Math.floor(x + (column + 0.5) * scale);
        const py = Math.floor(y + (row + 0.5) * scale);
        const green = data[4 * (py * image.width + px) + 1];
        levels += green < 100 ? 3 : 0;
      }
    }
    return levels;
  }, [`data:image/png;base64,${png.toString("base64")}`, area]);
}

/** Of two colours as CSS writes them, or as lists of red, green and blue: 1 to 21. */
export function contrastOf(one, other) {
  const [light, dark] = [one, other].map(luminanceOf).sort((a, b) => b - a);
  return (light + 0.05) / (dark + 0.05);
}

function luminanceOf(colour) {
  const channels = typeof colour === "string" ? colour.match(/[\d.]+/g).map(Number) : colour;
  const [red, green, blue] = channels.map((channel) => {
    const share = channel / 255;
    return share <= 0.04045 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
  });
  return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

/** [red, green, blue] of each pixel, row by row. */
async function pixelsOf(browser, png) {
  return inBlankPage(browser, async (source) => {
    const image = new Image();
    image.src = source;
    await image.decode();
    const canvas = new OffscreenCanvas(image.width, image.height);
    const pen = canvas.getContext("2d");
    pen.drawImage(image, 0, 0);
    const { data } = pen.getImageData(0, 0, image.width, image.height);
    return { width: image.width, height: image.height, bytes: Array.from(data) };
  }, `data:image/png;base64,${png.toString("base64")}`).then(({ width, height, bytes }) => ({
    width, height, pixels: Array.from({ length: width * height }, (_, i) => bytes.slice(4 * i, 4 * i + 3)),
  }));
}

/** How many pixels of two pictures of one size have at least that contrast to each other. */
export async function differingPixels(browser, one, other, contrast) {
  const [before, after] = await Promise.all([pixelsOf(browser, one), pixelsOf(browser, other)]);
  return before.pixels.filter((pixel, i) => contrastOf(pixel, after.pixels[i]) >= contrast).length;
}

/**
 * The greatest contrast to the colour that most of a picture has, and the share of its rows that begin with a line:
 * a pixel that stands out from that colour.
 */
export async function coloursIn(browser, png) {
  const { width, height, pixels } = await pixelsOf(browser, png);
  const counts = new Map();
  for (const pixel of pixels) counts.set(String(pixel), (counts.get(String(pixel)) ?? 0) + 1);
  const sorted = [...counts].sort((a, b) => b[1] - a[1]);
  const colours = sorted.map(([colour]) => colour.split(",").map(Number));
  const ground = colours[0];
  const contrast = Math.max(...colours.map((colour) => contrastOf(colour, ground)));
  const isLine = (x, y) => contrastOf(pixels[y * width + x], ground) >= 3;
  const meets = Array.from({ length: height }, (_, y) => [0, 1, 2, 3].some((x) => isLine(x, y)));
  return { contrast, edge: meets.filter(Boolean).length / height };
}
