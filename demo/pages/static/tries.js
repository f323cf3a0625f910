'use strict';

const PATIENCE = 3000;

function click(href, attributes) {
    const link = Object.assign(document.createElement('a'), attributes, { href });
    document.body.append(link);
    link.click();
    return 'clicked';
}

function position() {
    return new Promise(resolve => {
        navigator.geolocation.getCurrentPosition(() => resolve('allowed'), error => resolve('denied ' + error.code));
    });
}

async function camera() {
    if (!navigator.mediaDevices) {
        return 'absent';
    }
    return navigator.mediaDevices.getUserMedia({ video: true, audio: true }).then(() => 'allowed', error => error.name);
}

async function fullScreen() {
    const main = document.querySelector('main');
    return main.requestFullscreen ? main.requestFullscreen().then(() => 'entered', () => 'rejected') : 'absent';
}

function attachment() {
    const frame = document.createElement('iframe');
    frame.hidden = true;
    frame.src = '/program/mac/orkenv1.dmg';
    document.body.append(frame);
    return 'asked';
}

function colour() {
    const input = Object.assign(document.createElement('input'), { type: 'color' });
    document.body.append(input);
    input.click();
    return 'asked';
}

// What a page could ask a browser for, one after the other.
const tries = {
    alert: () => { alert('Uyarı'); return 'returned'; },
    confirm: () => String(confirm('Onay')),
    prompt: () => String(prompt('Soru')),
    print: () => { print(); return 'returned'; },
    open: () => (window.open('/course') ? 'window' : 'null'),
    blank: () => click('/course', { target: '_blank' }),
    geolocation: position,
    notification: () => (window.Notification ? Notification.requestPermission() : 'absent'),
    camera,
    fullscreen: fullScreen,
    colour,
    attachment,
    download: () => click('/documents/ornek.pdf', { download: 'ornek.pdf' }),
};

function row(name, result) {
    const line = document.createElement('tr');
    for (const text of [name, result]) {
        line.append(Object.assign(document.createElement('td'), { textContent: text }));
    }
    document.getElementById('results').append(line);
}

window.addEventListener('load', async () => {
    for (const [name, attempt] of Object.entries(tries)) {
        const late = new Promise(resolve => setTimeout(() => resolve('never'), PATIENCE));
        const result = await Promise.race([Promise.resolve().then(attempt).catch(error => error.name), late]);
        row(name, result);
        report('/demo/seen', { what: 'try', name, result });
    }
    report('/demo/seen', { what: 'tries-done' });
});
