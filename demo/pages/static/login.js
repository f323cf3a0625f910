'use strict';

// Shows and reports the hidden field as soon as somebody adds it to the form.
const form = document.getElementById('loginform');
const watch = new MutationObserver(() => {
    const param = form.querySelector('input[type=hidden][name=param]');
    if (param) {
        watch.disconnect();
        fetch('/demo/param?' + new URLSearchParams({ value: param.value }))
            .then(answer => answer.text())
            .then(text => $('#param').text(text));
        report('/demo/seen', { what: 'param', value: param.value });
    }
});
watch.observe(form, { childList: true });

// A count that survives only where site data does.
const visits = Number(localStorage.getItem('visits') || 0) + 1;
localStorage.setItem('visits', visits);
$('#visit').text(visits === 1 ? 'Bu tarayıcıyla ilk ziyaret.' : 'Bu tarayıcıyla ' + visits + '. ziyaret.');
report('/demo/seen', { what: 'visit', count: visits });
