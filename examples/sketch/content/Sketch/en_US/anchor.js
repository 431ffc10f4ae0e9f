// Scrolls a local page to its anchor. The client turns the first "#" of the
// map's value into "?nameAnchor=" and percent-encodes only what no URL may
// have: "&", "+" and "=" stay as they are, so URLSearchParams would misread
// them. The map's value may have a query of its own before that.
const anchor = location.search.split('?nameAnchor=')[1];
if (anchor) location.replace('#' + anchor);
