'use strict';

// Shows and reports every key that reaches the page.
window.addEventListener('keydown', event => {
    document.getElementById('keys').append(event.key + ' ');
    report('/demo/seen', { what: 'key', key: event.key });
}, true);
