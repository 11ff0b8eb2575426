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
export function levelsOf(browser, png) {
  return inBlankPage(browser, async (source) => {
    const image = new Image();
    image.src = source;
    await image.decode();
    const canvas = new OffscreenCanvas(image.width, image.height);
    const pen = canvas.getContext("2d");
    pen.drawImage(image, 0, 0);
    const { data } = pen.getImageData(0, 0, image.width, image.height);
    let levels = "";
    for (let i = 0; i < data.length; i += 4) levels += 3 - Math.round(data[i] / 85);
    return { width: image.width, height: image.height, levels };
  }, `data:image/png;base64,${png.toString("base64")}`);
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
