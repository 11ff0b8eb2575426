// Figures of many measurements.

/** The value below which that share of the values lies. */
export function percentile(values, share) {
  const sorted = [...values].sort((a, b) => a - b);
  return sorted[Math.min(sorted.length - 1, Math.floor(share * sorted.length))];
}

export const pause = (ms) => new Promise((resolve) => setTimeout(resolve, ms));
