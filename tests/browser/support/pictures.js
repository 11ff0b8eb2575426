// What is in a PNG file.

import { PNG } from "pngjs";

/** Each pixel as 0xRRGGBB, row by row. */
function pixelsOf(png) {
  const { width, height, data } = PNG.sync.read(png);
  const pixels = Uint32Array.from({ length: width * height }, (_, i) => data.readUInt32BE(4 * i) >>> 8);
  return { width, height, pixels };
}

const channelsOf = (pixel) => [pixel >> 16, (pixel >> 8) & 255, pixel & 255];

/** A picture of the panel as levels, one digit a pixel: 0 is white, 3 is black. */
export function levelsOf(png) {
  const { width, height, pixels } = pixelsOf(png);
  return { width, height, levels: Array.from(pixels, (pixel) => 3 - Math.round((pixel >> 16) / 85)).join("") };
}

/**
 * The panel within a picture of the whole telephone, one digit a pixel of the panel: 3 where the middle of the pixel is
 * dark, 0 where it is light.
 */
export function darkOrLight(png, { x, y, scale, width, height }) {
  const picture = pixelsOf(png);
  let levels = "";
  for (let row = 0; row < height; ++row) {
    for (let column = 0; column < width; ++column) {
      const px = Math.floor(x + (column + 0.5) * scale);
      const py = Math.floor(y + (row + 0.5) * scale);
      const [, green] = channelsOf(picture.pixels[py * picture.width + px]);
      levels += green < 100 ? 3 : 0;
    }
  }
  return levels;
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

const contrastBetween = (one, other) => contrastOf(channelsOf(one), channelsOf(other));

/** How many pixels of two pictures of one size have at least that contrast to each other. */
export function differingPixels(one, other, contrast) {
  const [before, after] = [pixelsOf(one).pixels, pixelsOf(other).pixels];
  return before.filter((pixel, i) => pixel !== after[i] && contrastBetween(pixel, after[i]) >= contrast).length;
}

/** The pixels that an area, in fractions of a pixel, has a part of. */
function cut({ width, height, pixels }, area) {
  const [left, top] = [Math.floor(area.x), Math.floor(area.y)];
  const right = Math.min(width, Math.ceil(area.x + area.width));
  const bottom = Math.min(height, Math.ceil(area.y + area.height));
  const rows = [];
  for (let y = top; y < bottom; ++y) rows.push(...pixels.subarray(y * width + left, y * width + right));
  return { width: right - left, height: bottom - top, pixels: rows };
}

/**
 * Within an area, or all of a picture: the greatest contrast to the colour that most of it has, and the share of its rows
 * that begin with a line, a pixel that stands out from that colour.
 */
export function coloursIn(png, area) {
  const picture = pixelsOf(png);
  const { width, height, pixels } = area ? cut(picture, area) : picture;
  const counts = new Map();
  for (const pixel of pixels) counts.set(pixel, (counts.get(pixel) ?? 0) + 1);
  const colours = [...counts].sort((a, b) => b[1] - a[1]).map(([colour]) => colour);
  const [ground] = colours;
  const contrast = Math.max(...colours.map((colour) => contrastBetween(colour, ground)));
  const isLine = (x, y) => contrastBetween(pixels[y * width + x], ground) >= 3;
  const meets = Array.from({ length: height }, (_, y) => [0, 1, 2, 3].some((x) => isLine(x, y)));
  return { contrast, edge: meets.filter(Boolean).length / height };
}
