// Lists the pages that have all words of the search: search.html?q=WORDS. The
// client percent-encodes the words; the form of this page writes "+" for a
// space.
const text = new URLSearchParams(location.search).get('q') ?? '';
const words = text.toLowerCase().split(/\s+/).filter(Boolean);

// The index has entities, as the pages do.
const decoded = (html) =>
  new DOMParser().parseFromString(html, 'text/html').body.textContent;

const found = pages.filter((page) => {
  const all = decoded(page.title + ' ' + page.text).toLowerCase();
  return words.length > 0 && words.every((word) => all.includes(word));
});

document.title = `Pages found: ${found.length}`;
document.querySelector('h1').textContent = document.title;
document.querySelector('input').value = text;
for (const page of found) {
  const link = document.createElement('a');
  link.href = page.name;
  link.textContent = decoded(page.title);
  const item = document.createElement('li');
  item.append(link);
  document.getElementById('found').append(item);
}
