'use strict';

let reported = Promise.resolve();

// Shows and reports every key that reaches the page, one after the other.
window.addEventListener('keydown', event => {
    document.getElementById('keys').append(event.key + ' ');
    reported = reported.then(() => report('/demo/seen', { what: 'key', key: event.key }));
}, true);
