// The box of names: finds functions, families, statuses, parameters by any part of their names, as one types.
(function () {
  "use strict";
  var most = 12;

  function plain(text) { return text.toLowerCase().replace(/_/g, ""); }

  // A family whose sentence has the words comes behind all names.
  function described(entry, words) {
    var text = entry[1] === "family" ? plain(entry[3]) : "";
    return words.every(function (word) { return text.indexOf(word) >= 0; }) ? 9000 : -1;
  }

  // The better the lower: the whole name, its start, the start of a word, anywhere; families ahead of their members.
  // Of several words each is somewhere in the name, and the first counts.
  function rank(entry, words) {
    var name = plain(entry[0]);
    if (!words.every(function (word) { return name.indexOf(word) >= 0; })) return described(entry, words);
    var at = name.indexOf(words[0]);
    var place = name === words[0] ? 0 : at === 0 ? 1 : /^hux[is]?$/.test(name.slice(0, at)) ? 2 : 3;
    return place * 1000 + (entry[1] === "family" ? 0 : 500) + Math.min(name.length, 400);
  }

  function find(text) {
    var words = plain(text).replace(/^\s*hux(::|\.)/, "").split(/\s+/).filter(Boolean);
    if (!words.length) return [];
    var found = [];
    window.huxNames.forEach(function (entry) {
      var r = rank(entry, words);
      if (r >= 0) found.push([r, entry]);
    });
    found.sort(function (a, b) { return a[0] - b[0]; });
    return found.slice(0, most).map(function (f) { return f[1]; });
  }

  function show(box, list) {
    list.textContent = "";
    find(box.value).forEach(function (entry) {
      var item = document.createElement("li"), link = document.createElement("a");
      var name = document.createElement("b"), kind = document.createElement("span");
      link.href = (box.dataset.root || "") + entry[2];
      name.textContent = entry[0];
      kind.textContent = entry[1] === "family" ? entry[3] : entry[1] + (entry[3] ? ": " + entry[3] : "");
      link.append(name, kind);
      item.append(link);
      list.append(item);
    });
  }

  document.addEventListener("DOMContentLoaded", function () {
    var box = document.getElementById("hux-names"), list = document.getElementById("hux-found");
    if (!box) return;
    box.addEventListener("input", function () { show(box, list); });
    box.addEventListener("keydown", function (event) {
      var first = list.querySelector("a");
      if (event.key === "Enter" && first) location.href = first.href;
      if (event.key === "Escape") { box.value = ""; show(box, list); }
    });
    document.addEventListener("keydown", function (event) {
      var writing = /^(INPUT|TEXTAREA)$/.test(document.activeElement.tagName);
      if (event.key === "/" && !writing) { event.preventDefault(); box.focus(); }
    });
    // A search may be a link: ?name=Add
    var asked = new URLSearchParams(location.search).get("name");
    if (asked) { box.value = asked; show(box, list); }
  });
})();
