"use strict";

const byId = (id) => document.getElementById(id);

/* What the user has chosen on this page, where the browser keeps it. */
const settings = {
  get(name) {
    try {
      return localStorage.getItem(name);
    } catch {
      return null;
    }
  },
  set(name, value) {
    try {
      localStorage.setItem(name, value);
    } catch { /* then it holds for this visit */ }
  },
};
