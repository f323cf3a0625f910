'use strict';

// The page's own selector function. Every operation but the reading form of val() answers the selection again.
class Selection {
    constructor(nodes) {
        this.nodes = nodes;
    }

    css(name, value) {
        this.nodes.forEach(node => node.style.setProperty(name, value));
        return this;
    }

    append(child) {
        this.nodes.forEach(node => node.append(child));
        return this;
    }

    each(visit) {
        this.nodes.forEach((node, index) => visit.call(node, index, node));
        return this;
    }

    on(event, listener) {
        this.nodes.forEach(node => node.addEventListener(event, listener));
        return this;
    }

    text(value) {
        this.nodes.forEach(node => { node.textContent = value; });
        return this;
    }

    val(value) {
        if (value === undefined) {
            return this.nodes.length > 0 ? this.nodes[0].value : undefined;
        }
        this.nodes.forEach(node => { node.value = value; });
        return this;
    }
}

function $(target) {
    const nodes = typeof target === 'string' ? document.querySelectorAll(target) : [target];
    return new Selection(Array.from(nodes));
}
