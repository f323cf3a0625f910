'use strict';

// Tells the provider's request log what only the page can know. The promise is kept when it has arrived.
function report(path, values) {
    const query = new URLSearchParams(values);
    return fetch(path + '?' + query, { cache: 'no-store' });
}

window.addEventListener('load', () => report('/demo/finished', { page: document.documentElement.dataset.page }));
